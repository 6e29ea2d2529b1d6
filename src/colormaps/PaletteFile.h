#pragma once

#include "colormaps/ColorMap.h"

#include <string_view>

namespace vlt::colormaps {

/// Reads a binary palette: the first index and the number n of colours as unsigned 32-bit integers,
/// then n bytes of red, n of green and n of blue. The integers are little-endian, or big-endian if
/// n would be invalid otherwise. The colour at index i belongs to the value first index + i.
///
/// @return  empty unless the first index is below 256, n within 1 .. 256, and (size - 8) / n is 3
std::vector<ColorAssociation> parsePalette(std::string_view bytes);

} // namespace vlt::colormaps
