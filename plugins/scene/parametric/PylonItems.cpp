#include "plugins/scene/parametric/PylonItems.h"

#include "plugins/scene/parametric/BadQuery.h"

namespace vlt::scene {

namespace {

constexpr double LargestSectorM = 1e8; ///< radius and height that a user can choose
constexpr double TallestM = 2000;      ///< masts and antennas
constexpr double WidestM = 1000;
constexpr double LongestAntennaM = 30;
constexpr double LargestScalePercent = 1000;

Transmitter readDirection(Words &words)
{
    Transmitter transmitter;
    transmitter.heightM = words.number("height", 0, TallestM);
    transmitter.azimuthDeg = words.number("azimuth", -360, 360);
    transmitter.tiltDeg = words.number("tilt", -90, 90);
    return transmitter;
}

} // namespace

osg::Vec3d readPlace(Words &words)
{
    osg::Vec3d place;
    place.x() = words.number("x", -FarthestM, FarthestM);
    place.y() = words.number("y", -FarthestM, FarthestM);
    place.z() = words.number("z", -FarthestM, FarthestM);
    return place;
}

PylonType readPylonType(std::string_view text)
{
    const std::optional<PylonType> type = pylonTypeNamed(text);
    if (!type)
        Words("pylon_type", text).refuse("type", text, "is unknown");
    return *type;
}

PylonDesign readCommonDesign(const ParametricQuery &query)
{
    query.atMostOnce("data_folder");
    PylonDesign design;
    design.type = readPylonType(query.single("pylon_type"));
    Words scale("transmitter_scale", query.single("transmitter_scale"));
    scale.expect(1, "PERCENT");
    design.antennaScale = scale.number("scale", 0, LargestScalePercent) / 100;
    Words distances("lod", query.single("lod"));
    distances.expect(2, "SYMBOLIC REALISTIC");
    design.symbolicDistanceM = distances.number("symbolic distance", 0, FarthestM);
    design.realisticDistanceM = distances.number("realistic distance", 0, FarthestM);
    return design;
}

PylonObject readPylon(const std::string &item, std::string_view text, const PylonDesign &common)
{
    Words words(item, text);
    words.expect(8, "X Y Z HEIGHT WIDTH RADIUS SECTORHEIGHT SPACING");
    PylonObject pylon{{}, common};
    pylon.foot = readPlace(words);
    PylonDesign &design = pylon.design;
    design.heightM = words.number("height", 0.1, TallestM);
    design.widthM = words.number("width", 0.01, WidestM);
    design.sectorRadiusM = words.number("sector radius", 0, LargestSectorM);
    design.sectorHeightM = words.number("sector height", 0, LargestSectorM);
    design.sectorSpacingM = words.number("sector spacing", 0, FarthestM);
    return pylon;
}

Transmitter readTransmitter(const std::string &item, std::string_view text)
{
    Words words(item, text);
    words.expect(6, "HEIGHT AZIMUTH TILT BEAMWIDTH ANTENNALENGTH rrggbbaa");
    Transmitter transmitter = readDirection(words);
    transmitter.beamWidthDeg = words.number("beam width", 0, 360);
    transmitter.antennaLengthM = words.number("antenna length", 0, LongestAntennaM);
    transmitter.color = words.color();
    return transmitter;
}

Transmitter readDish(const std::string &item, std::string_view text)
{
    Words words(item, text);
    words.expect(5, "HEIGHT AZIMUTH TILT DIAMETER rrggbbaa");
    Transmitter dish = readDirection(words);
    dish.kind = AntennaKind::Dish;
    dish.antennaLengthM = words.number("diameter", 0, LongestAntennaM);
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
