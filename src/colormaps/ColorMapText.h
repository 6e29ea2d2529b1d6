#pragma once

#include "colormaps/ColorMap.h"

#include <string_view>

namespace vlt::colormaps {

/// Reads the text of a colour map, one colour a line:
///
///     value      name [alpha]                 5 red
///     value      red green blue [alpha]       5 255 0 0 128
///     50%        ...                          half way from minimum to maximum
///     nv         ...                          what has no value
///
/// Words lie between blanks, tabs, commas and colons; names and "nv" in any case. Lines that begin
/// with "#" or "/" and those of one word are passed over, and so are percentages where an end of
/// the range is left out. Numbers are read as far as they go: "12px" is 12, "px" is 0; colours are
/// kept within 0 .. 255.
///
/// @param minimum,maximum  the range, ColorMap::Unset for an end that is left out
/// @return                 none after a line that spoils the file (a percentage outside 0 .. 100,
///                         an unknown colour), which is told as a failure of the geodata library
std::optional<ColorTable> parseColorMapText(std::string_view text, double minimum, double maximum);

} // namespace vlt::colormaps
