#include "plugins/scene/layers/SiteStyle.h"

#include "plugins/scene/parametric/BadQuery.h"
#include "plugins/scene/parametric/ParametricQuery.h"
#include "plugins/scene/parametric/PylonItems.h"

#include <initializer_list>

namespace vlt::scene {

namespace {

constexpr double WidestM = 1000;
constexpr double LargestSectorM = 1e8;
constexpr double LargestScalePercent = 1000;

struct Number
{
    std::string_view name;
    double least;
    double most;
    double *value;
};

void readNumbers(const contract::ConnectionString &source, const std::string &key,
                 std::string_view meaning, std::initializer_list<Number> numbers)
{
    const std::string value = styleOption(source, key);
    Words words(key, value);
    words.expect(numbers.size(), meaning);
    for (const Number &number : numbers)
        *number.value = words.number(number.name, number.least, number.most);
}

} // namespace

std::string styleOption(const contract::ConnectionString &source, std::string_view key)
{
    std::string value = source.option(key);
    if (value.empty())
        throw BadQuery(std::string(key) + " is missing in the layer's source");
    return value;
}

SiteStyle readSiteStyle(const contract::ConnectionString &source)
{
    SiteStyle style;
    PylonDesign &pylon = style.pylon;
    pylon.type = readPylonType(styleOption(source, "pylon_type"));
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
    const std::string colors = styleOption(source, "sector_colors");
    Words words("sector_colors", colors);
    while (style.colors.size() < words.count())
        style.colors.push_back(words.color());
    if (style.colors.empty())
        throw BadQuery("sector_colors is missing in the layer's source");
    return style;
}

} // namespace vlt::scene
