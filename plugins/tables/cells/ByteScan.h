#pragma once

#include <string_view>

namespace vlt::driver {

/// First place in [begin, end - 1) where `first` is followed by `second`; `end` when there is none.
/// Uses the widest registers of the machine it runs on.
const char *findPair(const char *begin, const char *end, char first, char second);

/// First place in [begin, end) that holds one of three bytes; `end` when there is none.
const char *findAnyOf(const char *begin, const char *end, char a, char b, char c);

/// First place of `text` (two bytes at least) in [begin, end); `end` when there is none.
const char *findText(const char *begin, const char *end, std::string_view text);

} // namespace vlt::driver
