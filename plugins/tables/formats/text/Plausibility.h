#pragma once

#include <string_view>

namespace vlt::driver {

/// How much a UTF-8 text that was decoded by a guess looks like something people write: the share
/// of its characters above ASCII that make sense where they stand, 0 .. 1; 1 for a text without
/// any.
///
/// Accented Latin letters make sense as far as one language, or a pair that shares a country, has
/// them; letters of other scripts do where no small Latin letter touches them; other signs do
/// unless they stand inside a word.
double plausibility(std::string_view text);

} // namespace vlt::driver
