#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace vlt::scene {

/// Largest layer file or building document that is read, in bytes.
inline constexpr std::size_t MaxLayerFileSize = 16 << 20;

/// The text of a local file in UTF-8: UTF-16 and what the XML declaration names are converted. The
/// bytes stay where they are UTF-8 whatever is declared, for templates are often filled so.
///
/// @throws BadLayer  it is no file, cannot be read or is larger than MaxLayerFileSize
std::string readLayerText(const std::string &path);

/// "&#233;" and "&#xE9;".
enum class References { Taken, Kept };

/// Takes the five escapes of XML out and the references to characters; any other "&" is one that
/// nobody escaped.
std::string unescaped(std::string_view text, References references = References::Taken);

} // namespace vlt::scene
