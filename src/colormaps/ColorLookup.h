#pragma once

#include "colormaps/ColorMap.h"

namespace vlt::colormaps {

/// How values between those of a map are coloured.
enum class Interpretation {
    ColorRanges,  ///< with the colour of the next lower one: each colour holds up to the next value
    Interpolation ///< with a mixture of the two beside it, in proportion
};

/// The colour of a value.
///
/// Values outside the map have the colour of the nearer end. Where the map has several colours for
/// one value, mixtures change from the first to the last of them just above the value; the range
/// that begins there has the last one.
///
/// @param value  NaN for none
/// @return       for NaN the map's colour of what has no value; none where there is none, or no
///               colour at all
std::optional<Rgba> colorOf(const ColorMap &map, double value, Interpretation interpretation);

} // namespace vlt::colormaps
