#include "plugins/scene/buildings/ColorText.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <string_view>

namespace vlt::scene {

namespace {

using colormaps::Interpretation;

/// Takes what follows the last `mark` off the end of a text.
std::optional<std::string> takeFromEnd(std::string_view &text, std::string_view mark)
{
    const std::size_t at = text.rfind(mark);
    if (at == std::string_view::npos)
        return std::nullopt;
    std::string value(text.substr(at + mark.size()));
    text = text.substr(0, at);
    return value;
}

std::optional<bool> choice(std::string_view text, std::string_view yes, std::string_view no)
{
    const auto isSame = [&](std::string_view other) {
        return std::equal(
            text.begin(), text.end(), other.begin(), other.end(),
            [](unsigned char a, unsigned char b) { return std::tolower(a) == std::tolower(b); });
    };
    if (isSame(yes))
        return true;
    return isSame(no) ? std::optional(false) : std::nullopt;
}

Interpretation interpretationOf(bool isMixed)
{
    return isMixed ? Interpretation::Interpolation : Interpretation::ColorRanges;
}

std::optional<RasterColors> parseImage(std::string_view text)
{
    RasterColors colors;
    std::optional<std::string> last = takeFromEnd(text, ";");
    std::optional<bool> isMixed = choice(last.value_or(""), "interpolation", "colorrange");
    if (last && !isMixed) {
        colors.noData = *last;
        isMixed = choice(takeFromEnd(text, ";").value_or(""), "interpolation", "colorrange");
    }
    const auto isStretched = choice(takeFromEnd(text, ";").value_or(""), "stretched", "absolute");
    const auto reduction = coverage::reductionNamed(takeFromEnd(text, ";").value_or(""));
    const auto map = takeFromEnd(text, ";");
    if (!isMixed || !isStretched || !reduction || !map || map->empty() || text.empty())
        return std::nullopt;
    colors.raster = text;
    colors.map = *map;
    colors.reduction = *reduction;
    colors.isStretched = *isStretched;
    colors.interpretation = interpretationOf(*isMixed);
    return colors;
}

std::optional<RasterColors> parseColorMap(std::string_view text)
{
    const auto reduction = coverage::reductionNamed(takeFromEnd(text, ";type=").value_or(""));
    const auto band = takeFromEnd(text, ";band=");
    const auto isMixed =
        choice(takeFromEnd(text, ";interpolatecmap=").value_or(""), "TRUE", "FALSE");
    const auto isStretched =
        choice(takeFromEnd(text, ";stretchcmap=").value_or(""), "TRUE", "FALSE");
    const auto map = takeFromEnd(text, ";cmap=");
    const auto noData = takeFromEnd(text, ";nd=");
    if (!reduction || band != "1" || !isMixed || !isStretched || !map || map->empty() ||
        text.empty())
        return std::nullopt;
    return RasterColors{
        std::string(text),  *map, *reduction, *isStretched, interpretationOf(*isMixed),
        noData.value_or("")};
}

} // namespace

std::optional<colormaps::Rgba> parseColor(const std::string &text)
{
    constexpr std::size_t Length = 7;
    if (text.size() != Length || text.front() != '#')
        return std::nullopt;
    unsigned value = 0;
    const auto [end, error] =
        std::from_chars(text.data() + 1, text.data() + text.size(), value, 16);
    if (error != std::errc() || end != text.data() + text.size())
        return std::nullopt;
    const auto part = [value](int shift) { return static_cast<std::uint8_t>(value >> shift); };
    return colormaps::Rgba{part(16), part(8), part(0), 255};
}

std::optional<RasterColors> parseRasterColors(const std::string &text)
{
    constexpr std::string_view Image = "IMAGE;";
    constexpr std::string_view ColorMap = "cmap:datasource=";
    const std::string_view all = text;
    if (all.starts_with(Image))
        return parseImage(all.substr(Image.size()));
    if (all.starts_with(ColorMap))
        return parseColorMap(all.substr(ColorMap.size()));
    return std::nullopt;
}

} // namespace vlt::scene
