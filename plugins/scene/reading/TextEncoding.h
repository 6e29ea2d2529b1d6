#pragma once

#include <string>

namespace vlt::scene {

/// The text of an XML file in UTF-8, without a byte order mark. A text of an encoding that is not
/// known stays as it is.
std::string asUtf8(std::string bytes);

/// Whether a number is that of a Unicode character; surrogates are none.
bool isCharacter(char32_t letter);

/// @param letter  a character
void appendUtf8(std::string &text, char32_t letter);

} // namespace vlt::scene
