#pragma once

#include "colormaps/ColorMap.h"

#include <cstddef>

namespace vlt::colormaps {

/// Number of colours that are easily distinguished.
inline constexpr std::size_t DistinctColorCount = 12;

/// The colour of one of several kinds, which have no order.
///
/// @param rank  from 0; those from DistinctColorCount are all the same grey
Rgba distinctColor(std::size_t rank);

} // namespace vlt::colormaps
