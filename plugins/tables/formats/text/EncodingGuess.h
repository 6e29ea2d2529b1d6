#pragma once

#include "plugins/tables/bytes/InputFile.h"

#include <string>

namespace vlt::driver {

inline constexpr char Utf8[] = "UTF-8";

/// Guesses the encoding of a text that has no byte order mark and is not valid UTF-8. Reads the
/// whole file.
///
/// A text with few invalid bytes among many characters of UTF-8 is UTF-8. Otherwise it is the
/// result of the detector, if the text is clearly more plausible in that encoding than in
/// Windows-1252, and else Windows-1252: short tables have too few accents for a reliable detection.
std::string guessEncoding(const std::shared_ptr<const InputFile> &file);

} // namespace vlt::driver
