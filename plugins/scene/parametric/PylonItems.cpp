#include "plugins/scene/parametric/PylonItems.h"

#include "contract/ParametricKeys.h"
#include "contract/QueryOptions.h"
#include "plugins/scene/parametric/BadQuery.h"
#include "plugins/scene/parametric/HostileLimits.h"

namespace vlt::scene {

namespace keys = contract::query;
namespace parametric = contract::parametric;

namespace {

Transmitter readDirection(Words &words)
{
    Transmitter transmitter;
    transmitter.heightM = words.number("MESS_QUANTITY_HEIGHT", limits::AntennaHeightM);
    transmitter.azimuthDeg = words.number("MESS_QUANTITY_AZIMUTH", limits::AzimuthDeg);
    transmitter.tiltDeg = words.number("MESS_QUANTITY_TILT", limits::TiltDeg);
    return transmitter;
}

} // namespace

osg::Vec3d readPlace(Words &words)
{
    osg::Vec3d place;
    place.x() = words.number("MESS_QUANTITY_X", limits::PlaceM);
    place.y() = words.number("MESS_QUANTITY_Y", limits::PlaceM);
    place.z() = words.number("MESS_QUANTITY_Z", limits::PlaceM);
    return place;
}

PylonType readPylonType(std::string_view text)
{
    const std::optional<PylonType> type = pylonTypeNamed(text);
    if (!type)
        Words(keys::PylonType, text).refuseUnknown("MESS_QUANTITY_TYPE", text);
    return *type;
}

PylonDesign readCommonDesign(const ParametricQuery &query)
{
    query.atMostOnce(keys::DataFolder);
    PylonDesign design;
    design.type = readPylonType(query.single(keys::PylonType));
    Words scale(keys::TransmitterScale, query.single(keys::TransmitterScale));
    scale.expect(1, "PERCENT");
    design.antennaScale = scale.number("MESS_QUANTITY_SCALE", limits::AntennaScalePercent) / 100;
    Words distances(parametric::Distances, query.single(parametric::Distances));
    distances.expect(2, parametric::DistancesWords);
    design.symbolicDistanceM = distances.number("MESS_QUANTITY_SYMBOLIC", limits::DistanceM);
    design.realisticDistanceM = distances.number("MESS_QUANTITY_REALISTIC", limits::DistanceM);
    return design;
}

PylonObject readPylon(const std::string &item, std::string_view text, const PylonDesign &common)
{
    Words words(item, text);
    words.expect(8, parametric::PylonWords);
    PylonObject pylon{{}, common};
    pylon.foot = readPlace(words);
    PylonDesign &design = pylon.design;
    design.heightM = words.number("MESS_QUANTITY_HEIGHT", limits::MastHeightM);
    design.widthM = words.number("MESS_QUANTITY_WIDTH", limits::PylonWidthM);
    design.sectorRadiusM = words.number("MESS_QUANTITY_SECTOR_RADIUS", limits::SectorSizeM);
    design.sectorHeightM = words.number("MESS_QUANTITY_SECTOR_HEIGHT", limits::SectorSizeM);
    design.sectorSpacingM = words.number("MESS_QUANTITY_SECTOR_SPACING", limits::SectorSpacingM);
    return pylon;
}

Transmitter readTransmitter(const std::string &item, std::string_view text)
{
    Words words(item, text);
    words.expect(6, parametric::TransmitterWords);
    Transmitter transmitter = readDirection(words);
    transmitter.beamWidthDeg = words.number("MESS_QUANTITY_BEAM_WIDTH", limits::BeamWidthDeg);
    transmitter.antennaLengthM =
        words.number("MESS_QUANTITY_ANTENNA_LENGTH", limits::AntennaLengthM);
    transmitter.color = words.color();
    return transmitter;
}

Transmitter readDish(const std::string &item, std::string_view text)
{
    Words words(item, text);
    words.expect(5, parametric::DishWords);
    Transmitter dish = readDirection(words);
    dish.kind = AntennaKind::Dish;
    dish.antennaLengthM = words.number("MESS_QUANTITY_DIAMETER", limits::AntennaLengthM);
    dish.color = words.color();
    return dish;
}

void checkTransmitterCount(std::size_t count)
{
    if (count > MaxTransmitters)
        throw BadQuery("MESS_QUERY_MANY_ITEMS", {std::to_string(count), parametric::Transmitter,
                                                 std::to_string(MaxTransmitters)});
}

} // namespace vlt::scene
