#include "colormaps/ColorLookup.h"

#include <algorithm>
#include <cmath>

namespace vlt::colormaps {

namespace {

std::uint8_t mixed(std::uint8_t from, std::uint8_t to, double share)
{
    return static_cast<std::uint8_t>(std::lround(from + (to - from) * share));
}

/// The colour of `value`, which is above `below.value` and at most `above.value`.
Rgba mixture(const ColorAssociation &below, const ColorAssociation &above, double value)
{
    const double scale = std::isfinite(above.value - below.value) ? 1 : 0.5;
    const double share =
        (value * scale - below.value * scale) / (above.value * scale - below.value * scale);
    return {mixed(below.color.red, above.color.red, share),
            mixed(below.color.green, above.color.green, share),
            mixed(below.color.blue, above.color.blue, share),
            mixed(below.color.alpha, above.color.alpha, share)};
}

} // namespace

std::optional<Rgba> colorOf(const ColorMap &map, double value, Interpretation interpretation)
{
    const std::vector<ColorAssociation> &all = map.associations();
    if (all.empty())
        return std::nullopt;
    if (std::isnan(value))
        return map.noDataColor();

    const bool isRange = interpretation == Interpretation::ColorRanges;
    // The first association above the value; for interpolation it may also be at the value.
    const auto next =
        std::partition_point(all.begin(), all.end(), [&](const ColorAssociation &one) {
            return one.value < value || (isRange && one.value == value);
        });
    if (next == all.begin())
        return next->color;
    const ColorAssociation &below = *std::prev(next);
    if (isRange || next == all.end())
        return below.color;
    return mixture(below, *next, value);
}

} // namespace vlt::colormaps
