#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace vlt::scene {

/// Maximum size of a layer file or building document, in bytes.
inline constexpr std::size_t MaxLayerFileSize = 16 << 20;

/// The text of a local file in UTF-8, converted from UTF-16 or from the encoding in its XML
/// declaration. Bytes that are valid UTF-8 are not converted, even with another declaration,
/// because programs often fill in templates with UTF-8 without changing the declaration.
///
/// @throws BadLayer  it is not a file, cannot be read or is larger than MaxLayerFileSize
std::string readLayerText(const std::string &path);

/// Whether references to characters ("&#233;" and "&#xE9;") are replaced.
enum class References { Taken, Kept };

/// Replaces the five escape sequences of XML and the references to characters. Any other "&" is
/// kept, because the writer may not have escaped it.
std::string unescaped(std::string_view text, References references = References::Taken);

} // namespace vlt::scene
