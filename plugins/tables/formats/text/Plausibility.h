#pragma once

#include <string_view>

namespace vlt::driver {

/// How plausible a text in UTF-8 is after it was decoded from a guessed encoding: the share of
/// plausible characters among those above ASCII, 0 .. 1; 1 for a text without such characters.
///
/// Accented Latin letters are plausible if they belong to the language, or to the languages of one
/// country, that has the largest number of them. Letters of other scripts are plausible if no small
/// Latin letter is next to them, and other signs if they are not inside a word.
double plausibility(std::string_view text);

} // namespace vlt::driver
