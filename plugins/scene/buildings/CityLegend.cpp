#include "plugins/scene/buildings/CityLegend.h"

#include "colormaps/DistinctColors.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace vlt::scene {

namespace legend = contract::legend;
using colormaps::Rgba;

namespace {

legend::Rgba rgbaOf(const Rgba &color)
{
    return {color.red, color.green, color.blue, color.alpha};
}

/// The shortest text that is read as the same number, with a decimal point.
std::string numberText(double number)
{
    std::array<char, 32> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), number).ptr;
    return {text.data(), end};
}

void addNoValue(LegendRows &rows, const Rgba *noValue)
{
    if (noValue)
        rows.push_back({legend::NoValue, rgbaOf(*noValue), {}});
}

} // namespace

void addMap(LegendRows &rows, const colormaps::ColorMap &map, const MappedValues &values,
            const Rgba *noValue)
{
    const bool isGradient = values.interpretation == colormaps::Interpretation::Interpolation;
    rows.push_back(
        {legend::Map,
         {},
         {"", values.name, values.unit, isGradient ? legend::Gradient : legend::Ranges}});
    for (const colormaps::ColorAssociation &one : map.associations())
        rows.push_back({legend::Stop, rgbaOf(one.color), {numberText(one.value)}});
    addNoValue(rows, noValue);
}

void addKinds(LegendRows &rows, const city::FieldValues &values, const std::string &field,
              const Rgba *noValue)
{
    rows.push_back({legend::Field, {}, {field}});
    const std::size_t named = std::min(values.distinct.size(), colormaps::DistinctColorCount);
    for (std::size_t rank = 0; rank < named; ++rank)
        rows.push_back(
            {legend::Value, rgbaOf(colormaps::distinctColor(rank)), {values.distinct[rank].text}});
    if (named < values.distinct.size())
        rows.push_back({legend::Others, rgbaOf(colormaps::distinctColor(named)), {}});
    addNoValue(rows, noValue);
}

void setPart(LegendRows &rows, std::size_t first, const char *part)
{
    for (std::size_t i = first; i < rows.size(); ++i) {
        if (rows[i].kind == legend::Map)
            rows[i].texts.front() = part;
    }
}

void addImages(LegendRows &rows, const TextureImages &images,
               const contract::BuildingTextures &textures)
{
    for (const TextureImages::Level &level : images.levels()) {
        const auto image =
            std::find_if(textures.images.begin(), textures.images.end(),
                         [&](const auto &one) { return one.heightM == level.heightM; });
        if (image != textures.images.end())
            rows.push_back({legend::Image, {}, {numberText(level.heightM), nameOf(image->path)}});
    }
}

std::string nameOf(const std::string &path)
{
    const std::string name = path.substr(path.find_last_of("/\\:") + 1);
    const std::size_t suffix = name.rfind('.');
    return suffix == std::string::npos || suffix == 0 ? name : name.substr(0, suffix);
}

} // namespace vlt::scene
