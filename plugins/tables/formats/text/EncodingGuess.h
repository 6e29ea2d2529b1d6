#pragma once

#include "plugins/tables/bytes/InputFile.h"

#include <string>

namespace vlt::driver {

inline constexpr char Utf8[] = "UTF-8";

/// Name of the encoding of a text that has no byte order mark and is not UTF-8 throughout.
///
/// A text with few bad bytes among many characters of UTF-8 is UTF-8. Any other is what the
/// detector says where that makes clearly more sense than Windows-1252, of which short tables have
/// too few accents for a detector, and Windows-1252 elsewhere. Looks at the whole file.
std::string guessEncoding(const std::shared_ptr<const InputFile> &file);

} // namespace vlt::driver
