#pragma once

#include <string>

namespace vlt::scene {

/// The text of an XML file in UTF-8, without a byte order mark. A text in an unknown encoding is
/// not converted.
std::string asUtf8(std::string bytes);

/// Whether a number is the code of a Unicode character; a surrogate is not a character.
bool isCharacter(char32_t letter);

/// @param letter  a character
void appendUtf8(std::string &text, char32_t letter);

} // namespace vlt::scene
