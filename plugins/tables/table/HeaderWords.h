#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vlt::tables {

/// The words of a column name in lower case: cut at everything but letters and digits and where a
/// small letter is followed by a capital. "Site.X" gives site, x; "Longitude_WGS84" longitude,
/// wgs84; letters above ASCII stay.
std::vector<std::string> wordsOf(std::string_view name);

/// Whether a column name holds a word that tables of sites use.
bool isSiteWord(std::string_view name);

/// Lower case of ASCII letters.
std::string lowerCase(std::string_view text);

} // namespace vlt::tables
