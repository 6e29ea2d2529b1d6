#pragma once

#include <string_view>

namespace vlt::driver {

/// First position in [begin, end - 1) where `first` is followed by `second`; `end` if there is
/// none. Uses the widest vector registers of the machine.
const char *findPair(const char *begin, const char *end, char first, char second);

/// First position in [begin, end) with one of three bytes; `end` if there is none.
const char *findAnyOf(const char *begin, const char *end, char a, char b, char c);

/// First position of `text` (at least two bytes) in [begin, end); `end` if there is none.
const char *findText(const char *begin, const char *end, std::string_view text);

} // namespace vlt::driver
