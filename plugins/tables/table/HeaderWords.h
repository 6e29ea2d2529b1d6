#pragma once

#include "contract/TableKind.h"

#include <string>
#include <string_view>
#include <vector>

namespace vlt::driver {

/// The words of a column name in lower case: cut at everything but letters and digits and where a
/// small letter is followed by a capital. "Site.X" gives site, x; "Longitude_WGS84" longitude,
/// wgs84; letters above ASCII stay.
std::vector<std::string> wordsOf(std::string_view name);

/// The words of a column name in a table of links: like wordsOf(), and an end of the link that is
/// written together with what it has is a word of its own: "XStart" gives x, start; "lat1" lat, 1.
std::vector<std::string> linkWordsOf(std::string_view name);

/// Whether a column name holds a word that tables of that kind use.
bool isTableWord(std::string_view name, contract::TableKind kind);

/// Lower case of ASCII letters.
std::string lowerCase(std::string_view text);

} // namespace vlt::driver
