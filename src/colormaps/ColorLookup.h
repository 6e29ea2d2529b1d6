#pragma once

#include "colormaps/ColorMap.h"

namespace vlt::colormaps {

/// The colour of a value between two values of a map.
enum class Interpretation {
    ColorRanges,  ///< the colour of the lower one: each colour applies up to the next value
    Interpolation ///< a mixture of both colours, in proportion
};

/// The colour of a value.
///
/// Values outside the map have the colour of the nearer end. If the map has several colours for a
/// value, interpolation uses the first of them up to this value and the last of them above it; the
/// colour range that begins there has the last one.
///
/// @param value  NaN: no value
/// @return       for NaN the map's "no data" colour; nothing if that is missing, or if the map has
///               no colours
std::optional<Rgba> colorOf(const ColorMap &map, double value, Interpretation interpretation);

} // namespace vlt::colormaps
