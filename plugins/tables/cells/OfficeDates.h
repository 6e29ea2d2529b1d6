#pragma once

#include <string>
#include <string_view>

namespace vlt::driver {

/// Whether a number format is for dates or times: it contains y, m, d, h or s outside quotes,
/// brackets and escapes.
bool isDateFormat(std::string_view format);
/// The same for the built-in formats, which have a number but no text (ECMA-376, 18.8.30).
bool isDateFormatId(int id);

/// ISO 8601 text of a spreadsheet's day count: "2014-01-31", with a time of day
/// "2014-01-31T12:30:00", a time alone "12:30:00". Days count from 1900-01-01 = 1 with the
/// fictitious 1900-02-29 = 60, or from 1904-01-01 = 0. Empty for counts outside the years 1900 to
/// 9999.
std::string isoDate(double serial, bool from1904);

} // namespace vlt::driver
