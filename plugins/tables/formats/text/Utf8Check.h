#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace vlt::driver {

/// What bytes read as UTF-8 are.
struct Utf8Count
{
    std::size_t characters = 0; ///< above ASCII
    std::size_t badBytes = 0;   ///< that belong to no character
};

/// Counts characters and bytes that belong to none; a character that is cut at the end is bad.
Utf8Count countUtf8(std::string_view text);

/// Whether the bytes are UTF-8 as far as they go; a character cut at the end counts as good.
bool isUtf8(std::string_view text);

/// Whether a piece out of a text is UTF-8; characters may be cut at either end.
bool isUtf8Piece(std::string_view piece);

/// The text with U+FFFD in place of each bad byte.
std::string repairedUtf8(std::string_view text);

/// The first byte above ASCII at or behind `at`; the size of the text when there is none.
std::size_t skipAscii(std::string_view text, std::size_t at);

} // namespace vlt::driver
