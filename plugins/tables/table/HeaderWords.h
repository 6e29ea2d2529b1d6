#pragma once

#include "contract/TableKind.h"

#include <string>
#include <string_view>
#include <vector>

namespace vlt::driver {

/// The words of a column name, with ASCII letters in lower case. They are separated by characters
/// other than letters and digits, and where a capital letter follows a small one: "Site.X" gives
/// site, x; "Longitude_WGS84" gives longitude, wgs84.
std::vector<std::string> wordsOf(std::string_view name);

/// The text with its ASCII letters in lower case.
std::string lowerCase(std::string_view text);

} // namespace vlt::driver
