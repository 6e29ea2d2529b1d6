#include "plugins/scene/layers/SiteStyle.h"

#include "contract/QueryOptions.h"
#include "plugins/scene/parametric/BadQuery.h"
#include "plugins/scene/parametric/HostileLimits.h"
#include "plugins/scene/parametric/ParametricQuery.h"
#include "plugins/scene/parametric/PylonItems.h"

#include <initializer_list>

namespace vlt::scene {

namespace keys = contract::query;

namespace {

struct Number
{
    contract::SceneTextId name;
    contract::Range range;
    double *value;
};

void readNumbers(const contract::ConnectionString &source, const std::string &key,
                 std::string_view meaning, std::initializer_list<Number> numbers)
{
    const std::string value = styleOption(source, key);
    Words words(key, value);
    words.expect(numbers.size(), meaning);
    for (const Number &number : numbers)
        *number.value = words.number(number.name, number.range);
}

} // namespace

std::string styleOption(const contract::ConnectionString &source, std::string_view key)
{
    std::string value = source.option(key);
    if (value.empty())
        throw BadQuery("MESS_SCENE_NO_OPTION", {key});
    return value;
}

SiteStyle readSiteStyle(const contract::ConnectionString &source)
{
    SiteStyle style;
    PylonDesign &pylon = style.pylon;
    pylon.type = readPylonType(styleOption(source, keys::PylonType));
    readNumbers(source, keys::PylonWidth, "WIDTH",
                {{"MESS_QUANTITY_WIDTH", limits::PylonWidthM, &pylon.widthM}});
    readNumbers(source, keys::SectorProperties, "RADIUS HEIGHT SPACING",
                {{"MESS_QUANTITY_RADIUS", limits::SectorSizeM, &pylon.sectorRadiusM},
                 {"MESS_QUANTITY_HEIGHT", limits::SectorSizeM, &pylon.sectorHeightM},
                 {"MESS_QUANTITY_SPACING", limits::SectorSpacingM, &pylon.sectorSpacingM}});
    double percent = 0;
    readNumbers(source, keys::TransmitterScale, "PERCENT",
                {{"MESS_QUANTITY_SCALE", limits::AntennaScalePercent, &percent}});
    pylon.antennaScale = percent / 100;
    readNumbers(source, keys::Lods, "SYMBOLIC REALISTIC",
                {{"MESS_QUANTITY_SYMBOLIC", limits::DistanceM, &pylon.symbolicDistanceM},
                 {"MESS_QUANTITY_REALISTIC", limits::DistanceM, &pylon.realisticDistanceM}});
    const std::string colors = styleOption(source, keys::SectorColors);
    Words words(keys::SectorColors, colors);
    while (style.colors.size() < words.count())
        style.colors.push_back(words.color());
    if (style.colors.empty())
        throw BadQuery("MESS_SCENE_NO_OPTION", {keys::SectorColors});
    return style;
}

} // namespace vlt::scene
