#include "plugins/scene/parametric/PylonItems.h"

#include "contract/QueryOptions.h"
#include "plugins/scene/parametric/BadQuery.h"
#include "plugins/scene/parametric/HostileLimits.h"

namespace vlt::scene {

namespace keys = contract::query;

namespace {

Transmitter readDirection(Words &words)
{
    Transmitter transmitter;
    transmitter.heightM = words.number("height", limits::AntennaHeightM);
    transmitter.azimuthDeg = words.number("azimuth", limits::AzimuthDeg);
    transmitter.tiltDeg = words.number("tilt", limits::TiltDeg);
    return transmitter;
}

} // namespace

osg::Vec3d readPlace(Words &words)
{
    osg::Vec3d place;
    place.x() = words.number("x", limits::PlaceM);
    place.y() = words.number("y", limits::PlaceM);
    place.z() = words.number("z", limits::PlaceM);
    return place;
}

PylonType readPylonType(std::string_view text)
{
    const std::optional<PylonType> type = pylonTypeNamed(text);
    if (!type)
        Words(keys::PylonType, text).refuse("type", text, "is unknown");
    return *type;
}

PylonDesign readCommonDesign(const ParametricQuery &query)
{
    query.atMostOnce(keys::DataFolder);
    PylonDesign design;
    design.type = readPylonType(query.single(keys::PylonType));
    Words scale(keys::TransmitterScale, query.single(keys::TransmitterScale));
    scale.expect(1, "PERCENT");
    design.antennaScale = scale.number("scale", limits::AntennaScalePercent) / 100;
    Words distances("lod", query.single("lod"));
    distances.expect(2, "SYMBOLIC REALISTIC");
    design.symbolicDistanceM = distances.number("symbolic distance", limits::DistanceM);
    design.realisticDistanceM = distances.number("realistic distance", limits::DistanceM);
    return design;
}

PylonObject readPylon(const std::string &item, std::string_view text, const PylonDesign &common)
{
    Words words(item, text);
    words.expect(8, "X Y Z HEIGHT WIDTH RADIUS SECTORHEIGHT SPACING");
    PylonObject pylon{{}, common};
    pylon.foot = readPlace(words);
    PylonDesign &design = pylon.design;
    design.heightM = words.number("height", limits::MastHeightM);
    design.widthM = words.number("width", limits::PylonWidthM);
    design.sectorRadiusM = words.number("sector radius", limits::SectorSizeM);
    design.sectorHeightM = words.number("sector height", limits::SectorSizeM);
    design.sectorSpacingM = words.number("sector spacing", limits::SectorSpacingM);
    return pylon;
}

Transmitter readTransmitter(const std::string &item, std::string_view text)
{
    Words words(item, text);
    words.expect(6, "HEIGHT AZIMUTH TILT BEAMWIDTH ANTENNALENGTH rrggbbaa");
    Transmitter transmitter = readDirection(words);
    transmitter.beamWidthDeg = words.number("beam width", limits::BeamWidthDeg);
    transmitter.antennaLengthM = words.number("antenna length", limits::AntennaLengthM);
    transmitter.color = words.color();
    return transmitter;
}

Transmitter readDish(const std::string &item, std::string_view text)
{
    Words words(item, text);
    words.expect(5, "HEIGHT AZIMUTH TILT DIAMETER rrggbbaa");
    Transmitter dish = readDirection(words);
    dish.kind = AntennaKind::Dish;
    dish.antennaLengthM = words.number("diameter", limits::AntennaLengthM);
    dish.color = words.color();
    return dish;
}

void checkTransmitterCount(std::size_t count)
{
    if (count > MaxTransmitters)
        throw BadQuery(std::to_string(count) + " transmitters are more than " +
                       std::to_string(MaxTransmitters));
}

} // namespace vlt::scene
