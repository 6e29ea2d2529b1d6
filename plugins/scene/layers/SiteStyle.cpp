#include "layers/SiteStyle.h"

#include "parametric/BadQuery.h"
#include "parametric/ParametricQuery.h"

#include <charconv>
#include <initializer_list>

namespace vlt::scene {

namespace {

constexpr double WidestM = 1000;
constexpr double LargestSectorM = 1e8;
constexpr double FarthestM = 1e9;
constexpr double LargestScalePercent = 1000;

std::string optionOf(const connection::ConnectionString &source, const std::string &key)
{
    std::string value = source.option(key);
    if (value.empty())
        throw BadQuery(key + " is missing in the layer's source");
    return value;
}

struct Number
{
    std::string_view name;
    double least;
    double most;
    double *value;
};

void readNumbers(const connection::ConnectionString &source, const std::string &key,
                 std::string_view meaning, std::initializer_list<Number> numbers)
{
    const std::string value = optionOf(source, key);
    Words words(key, value);
    words.expect(numbers.size(), meaning);
    for (const Number &number : numbers)
        *number.value = words.number(number.name, number.least, number.most);
}

Color readColor(const Words &words, std::string_view text)
{
    unsigned value = 0;
    const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), value, 16);
    if (text.size() != 8 || fault != std::errc() || end != text.data() + text.size())
        words.refuse("colour", text, "is not rrggbbaa");
    const auto part = [value](unsigned shift) {
        return static_cast<unsigned char>(value >> shift);
    };
    return {part(24), part(16), part(8), part(0)};
}

} // namespace

SiteStyle readSiteStyle(const connection::ConnectionString &source)
{
    SiteStyle style;
    const std::string typeName = optionOf(source, "pylon_type");
    const std::optional<PylonType> type = pylonTypeNamed(typeName);
    if (!type)
        Words("pylon_type", typeName).refuse("type", typeName, "is unknown");
    PylonDesign &pylon = style.pylon;
    pylon.type = *type;
    readNumbers(source, "pylon_width", "WIDTH", {{"width", 0.01, WidestM, &pylon.widthM}});
    readNumbers(source, "sector_properties", "RADIUS HEIGHT SPACING",
                {{"radius", 0, LargestSectorM, &pylon.sectorRadiusM},
                 {"height", 0, LargestSectorM, &pylon.sectorHeightM},
                 {"spacing", 0, FarthestM, &pylon.sectorSpacingM}});
    double percent = 0;
    readNumbers(source, "transmitter_scale", "PERCENT",
                {{"scale", 0, LargestScalePercent, &percent}});
    pylon.antennaScale = percent / 100;
    readNumbers(source, "lods", "SYMBOLIC REALISTIC",
                {{"symbolic distance", 0, FarthestM, &pylon.symbolicDistanceM},
                 {"realistic distance", 0, FarthestM, &pylon.realisticDistanceM}});
    const std::string colors = optionOf(source, "sector_colors");
    Words words("sector_colors", colors);
    for (std::string_view word = words.word(); !word.empty(); word = words.word())
        style.colors.push_back(readColor(words, word));
    if (style.colors.empty())
        throw BadQuery("sector_colors is missing in the layer's source");
    return style;
}

} // namespace vlt::scene
