#pragma once

#include "colormaps/ColorMap.h"

#include <string>
#include <string_view>

namespace vlt::colormaps {

/// Reads the text of a colour map, one colour a line:
///
///     value      name [alpha]                 5 red
///     value      red green blue [alpha]       5 255 0 0 128
///     50%        ...                          the mean of minimum and maximum
///     nv         ...                          no data
///
/// Words are separated by blanks, tabs, commas and colons; names and "nv" are in any case of
/// letters. Lines that begin with "#" or "/" and lines of one word are ignored, and so are
/// percentages if an end of the range is unset. Of a number the leading digits are read: "12px" is
/// 12, "px" is 0. Colours are limited to 0 .. 255.
///
/// @param minimum,maximum  the range; ColorMap::Unset for an end that is not set
/// @return                 nothing if a line is invalid (a percentage outside 0 .. 100, an unknown
///                         colour), which is reported as an error of the geodata library
std::optional<ColorTable> parseColorMapText(std::string_view text, double minimum, double maximum);

/// The text of a map in its present range; parseColorMapText() reads the same values and colours.
std::string colorMapText(const ColorMap &map);

} // namespace vlt::colormaps
