#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace vlt::scene {

/// Largest layer file or building document that is read, in bytes.
inline constexpr std::size_t MaxLayerFileSize = 16 << 20;

/// The bytes of a local file.
///
/// @throws BadLayer  it is no file, cannot be read or is larger than MaxLayerFileSize
std::string readLayerText(const std::string &path);

/// Takes the five escapes of XML out; any other "&" is one that nobody escaped.
std::string unescaped(std::string_view text);

} // namespace vlt::scene
