#pragma once

#include "colormaps/ColorMap.h"

#include <string_view>

namespace vlt::colormaps {

/// Reads a binary palette: first index and number n of colours as unsigned 32-bit integers, then a
/// plane of n bytes each of red, green and blue. The integers are little-endian, or big-endian
/// where n makes no sense otherwise. The colour at place i belongs to the value first index + i.
///
/// @return  empty unless the first index is below 256, n within 1 .. 256, and (size - 8) / n is 3
std::vector<ColorAssociation> parsePalette(std::string_view bytes);

} // namespace vlt::colormaps
