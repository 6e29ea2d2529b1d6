#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vlt::driver {

/// The text in the form in which names are compared: no difference between capital and small
/// letters, no accents. A text that is not UTF-8 loses its capital ASCII letters only.
std::string folded(std::string_view text);

/// The folded words of a column name. They are separated by characters other than letters and
/// digits, where a capital letter follows a small one, and between letters and digits:
/// "Site.X" gives site, x; "Longitude_WGS84" gives longitude, wgs, 84.
std::vector<std::string> nameWords(std::string_view name);

} // namespace vlt::driver
