#include "layers/LayerText.h"

#include "layers/BadLayer.h"

#include <array>
#include <filesystem>
#include <fstream>
#include <utility>

namespace vlt::scene {

std::string readLayerText(const std::string &path)
{
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error))
        throw BadLayer("it is no file");
    std::ifstream stream(path, std::ios::binary);
    std::string text(MaxLayerFileSize + 1, '\0');
    stream.read(text.data(), static_cast<std::streamsize>(text.size()));
    text.resize(static_cast<std::size_t>(stream.gcount()));
    if (stream.bad() || (text.empty() && !stream.is_open()))
        throw BadLayer("it cannot be read");
    if (text.size() > MaxLayerFileSize)
        throw BadLayer("it is too large for a file of its kind");
    return text;
}

std::string unescaped(std::string_view text)
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
        plain += letter;
        text.remove_prefix(length);
    }
    return plain;
}

} // namespace vlt::scene
