#include "plugins/scene/reading/LayerText.h"

#include "plugins/scene/reading/BadLayer.h"
#include "plugins/scene/reading/TextEncoding.h"

#include <array>
#include <charconv>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <utility>

namespace vlt::scene {

std::string readLayerText(const std::string &path)
{
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error))
        throw BadLayer("MESS_SCENE_NO_FILE");
    std::ifstream stream(path, std::ios::binary);
    std::string text(MaxLayerFileSize + 1, '\0');
    stream.read(text.data(), static_cast<std::streamsize>(text.size()));
    text.resize(static_cast<std::size_t>(stream.gcount()));
    if (stream.bad() || (text.empty() && !stream.is_open()))
        throw BadLayer("MESS_SCENE_UNREADABLE");
    if (text.size() > MaxLayerFileSize)
        throw BadLayer("MESS_SCENE_LARGE_FILE");
    return asUtf8(std::move(text));
}

namespace {

/// The character, in UTF-8, of the reference at the start of a text, and the reference's length;
/// empty and 0 if there is none.
std::pair<std::string, std::size_t> referenceAt(std::string_view text)
{
    constexpr std::size_t MaxLength = sizeof("&#x10FFFF;");
    const std::size_t end = text.substr(0, MaxLength).find(';');
    if (!text.starts_with("&#") || end == std::string_view::npos)
        return {};
    const bool isHex = text.substr(2).starts_with('x');
    const char *first = text.data() + (isHex ? 3 : 2);
    const char *last = text.data() + end;
    std::uint32_t letter = 0;
    const auto [read, fault] = std::from_chars(first, last, letter, isHex ? 16 : 10);
    if (fault != std::errc() || read != last || letter == 0 || !isCharacter(letter))
        return {};
    std::string plain;
    appendUtf8(plain, letter);
    return {plain, end + 1};
}

} // namespace

std::string unescaped(std::string_view text, References references)
{
    using Escape = std::pair<std::string_view, char>;
    static constexpr std::array<Escape, 5> Escapes = {
        {{"&amp;", '&'}, {"&lt;", '<'}, {"&gt;", '>'}, {"&quot;", '"'}, {"&apos;", '\''}}};
    std::string plain;
    while (!text.empty()) {
        std::size_t length = 1;
        char letter = text.front();
        for (const auto &[escape, meaning] : Escapes) {
            if (letter == '&' && text.starts_with(escape)) {
                length = escape.size();
                letter = meaning;
                break;
            }
        }
        if (length == 1 && letter == '&' && references == References::Taken) {
            if (const auto [character, size] = referenceAt(text); size > 0) {
                plain += character;
                text.remove_prefix(size);
                continue;
            }
        }
        plain += letter;
        text.remove_prefix(length);
    }
    return plain;
}

} // namespace vlt::scene
