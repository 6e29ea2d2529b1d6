#include "parametric/PylonQuery.h"

#include "parametric/BadQuery.h"
#include "parametric/ParametricQuery.h"

#include <charconv>

namespace vlt::scene {

namespace {

constexpr double FarthestM = 1e9;      ///< places, and distances that a user can choose
constexpr double LargestSectorM = 1e8; ///< radius and height that a user can choose
constexpr double TallestM = 2000;      ///< masts and antennas
constexpr double WidestM = 1000;
constexpr double LongestAntennaM = 30;
constexpr double LargestScalePercent = 1000;

PylonType readType(std::string_view text)
{
    const std::optional<PylonType> type = pylonTypeNamed(text);
    if (!type)
        Words("pylon_type", text).refuse("type", text, "is unknown");
    return *type;
}

void readPylon(std::string_view text, PylonObject &pylon)
{
    Words words("pylon", text);
    words.expect(8, "X Y Z HEIGHT WIDTH RADIUS SECTORHEIGHT SPACING");
    pylon.foot.x() = words.number("x", -FarthestM, FarthestM);
    pylon.foot.y() = words.number("y", -FarthestM, FarthestM);
    pylon.foot.z() = words.number("z", -FarthestM, FarthestM);
    PylonDesign &design = pylon.design;
    design.heightM = words.number("height", 0.1, TallestM);
    design.widthM = words.number("width", 0.01, WidestM);
    design.sectorRadiusM = words.number("sector radius", 0, LargestSectorM);
    design.sectorHeightM = words.number("sector height", 0, LargestSectorM);
    design.sectorSpacingM = words.number("sector spacing", 0, FarthestM);
}

Color readColor(const Words &words, std::string_view text)
{
    Color color;
    bool good = text.size() == 8;
    for (unsigned i = 0; good && i < 4; ++i) {
        const char *begin = text.data() + std::size_t{2} * i;
        const auto [end, fault] = std::from_chars(begin, begin + 2, color[i], 16);
        good = fault == std::errc() && end == begin + 2;
    }
    if (!good)
        words.refuse("colour", text, "is not rrggbbaa");
    return color;
}

Transmitter readTransmitter(std::string_view text, std::size_t number)
{
    Words words("transmitter " + std::to_string(number), text);
    words.expect(6, "HEIGHT AZIMUTH TILT BEAMWIDTH ANTENNALENGTH rrggbbaa");
    Transmitter transmitter;
    transmitter.heightM = words.number("height", 0, TallestM);
    transmitter.azimuthDeg = words.number("azimuth", -360, 360);
    transmitter.tiltDeg = words.number("tilt", -90, 90);
    transmitter.beamWidthDeg = words.number("beam width", 0, 360);
    transmitter.antennaLengthM = words.number("antenna length", 0, LongestAntennaM);
    transmitter.color = readColor(words, words.word());
    return transmitter;
}

PylonObject readPylonQuery(std::string_view url)
{
    const ParametricQuery query(url, {"object", "data_folder", "pylon_type", "pylon", "transmitter",
                                      "transmitter_scale", "lod"});
    const std::string_view object = query.single("object");
    if (object != "pylon")
        Words("object", object).refuse("kind", object, "is unknown");
    if (query.all("data_folder").size() > 1)
        query.single("data_folder");

    PylonObject pylon;
    PylonDesign &design = pylon.design;
    design.type = readType(query.single("pylon_type"));
    readPylon(query.single("pylon"), pylon);
    const std::vector<std::string_view> transmitters = query.all("transmitter");
    if (transmitters.size() > MaxTransmitters)
        throw BadQuery(std::to_string(transmitters.size()) + " transmitters are more than " +
                       std::to_string(MaxTransmitters));
    for (const std::string_view text : transmitters)
        design.transmitters.push_back(readTransmitter(text, design.transmitters.size() + 1));

    Words scale("transmitter_scale", query.single("transmitter_scale"));
    scale.expect(1, "PERCENT");
    design.antennaScale = scale.number("scale", 0, LargestScalePercent) / 100;
    Words distances("lod", query.single("lod"));
    distances.expect(2, "SYMBOLIC REALISTIC");
    design.symbolicDistanceM = distances.number("symbolic distance", 0, FarthestM);
    design.realisticDistanceM = distances.number("realistic distance", 0, FarthestM);
    return pylon;
}

} // namespace

PylonOrFault parsePylonQuery(std::string_view url)
{
    try {
        return readPylonQuery(url);
    } catch (const BadQuery &fault) {
        return std::string(fault.what());
    }
}

} // namespace vlt::scene
