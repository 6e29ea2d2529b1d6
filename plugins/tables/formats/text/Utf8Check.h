#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace vlt::driver {

/// Numbers of valid and invalid parts of a text read as UTF-8.
struct Utf8Count
{
    std::size_t characters = 0; ///< valid ones above ASCII
    std::size_t badBytes = 0;   ///< bytes that are not part of a character
};

/// Counts characters and bad bytes. An incomplete character at the end is bad.
Utf8Count countUtf8(std::string_view text);

/// Whether the bytes are UTF-8. The last character may be incomplete.
bool isUtf8(std::string_view text);

/// Whether a part of a text is UTF-8. Characters may be incomplete at both ends.
bool isUtf8Piece(std::string_view piece);

/// The text with U+FFFD instead of each bad byte.
std::string repairedUtf8(std::string_view text);

/// Position of the first byte above ASCII at or after `at`; the size of the text if there is none.
std::size_t skipAscii(std::string_view text, std::size_t at);

} // namespace vlt::driver
