#include "plugins/scene/reading/TextEncoding.h"

#include <cpl_string.h>

#include <iconv.h>

#include <optional>
#include <string_view>
#include <utility>

namespace vlt::scene {

namespace {

constexpr char32_t Replacement = 0xFFFD;

bool isHigh(char32_t unit)
{
    return unit >= 0xD800 && unit < 0xDC00;
}

bool isLow(char32_t unit)
{
    return unit >= 0xDC00 && unit < 0xE000;
}

std::string fromUtf16(std::string_view bytes, bool isBigEndian)
{
    const auto unit = [&](std::size_t at) -> char32_t {
        const auto first = static_cast<unsigned char>(bytes[at]);
        const auto second = static_cast<unsigned char>(bytes[at + 1]);
        return isBigEndian ? first * 256U + second : second * 256U + first;
    };
    std::string text;
    for (std::size_t at = 0; at + 1 < bytes.size(); at += 2) {
        char32_t letter = unit(at);
        if (isHigh(letter) && at + 3 < bytes.size() && isLow(unit(at + 2))) {
            letter = 0x10000 + ((letter - 0xD800) << 10) + (unit(at + 2) - 0xDC00);
            at += 2;
        }
        appendUtf8(text, isCharacter(letter) ? letter : Replacement);
    }
    return text;
}

/// The encoding in the XML declaration; empty if it has none.
std::string declaredEncoding(std::string_view text)
{
    constexpr std::string_view Start = "<?xml";
    constexpr std::string_view Name = "encoding=";
    if (!text.starts_with(Start))
        return {};
    const std::string_view declaration = text.substr(0, text.find("?>"));
    const std::size_t at = declaration.find(Name);
    if (at == std::string_view::npos || at + Name.size() >= declaration.size())
        return {};
    const std::string_view value = declaration.substr(at + Name.size());
    const char quote = value.front();
    const std::size_t end = value.find(quote, 1);
    return (quote == '"' || quote == '\'') && end != std::string_view::npos
               ? std::string(value.substr(1, end - 1))
               : std::string();
}

/// The text converted to UTF-8; nothing if the encoding is unknown or the bytes are invalid in it.
std::optional<std::string> converted(std::string bytes, const std::string &encoding)
{
    constexpr std::size_t MaxBytesPerCharacter = 4;
    const iconv_t way = iconv_open("UTF-8", encoding.c_str());
    // NOLINTNEXTLINE(performance-no-int-to-ptr): the value that iconv_open() returns on failure
    if (way == reinterpret_cast<iconv_t>(-1))
        return std::nullopt;
    std::string text(bytes.size() * MaxBytesPerCharacter, '\0');
    char *from = bytes.data();
    char *to = text.data();
    std::size_t bytesLeft = bytes.size();
    std::size_t roomLeft = text.size();
    const bool isWhole =
        iconv(way, &from, &bytesLeft, &to, &roomLeft) != static_cast<std::size_t>(-1);
    iconv_close(way);
    text.resize(text.size() - roomLeft);
    return isWhole ? std::optional(text) : std::nullopt;
}

} // namespace

bool isCharacter(char32_t letter)
{
    return letter <= 0x10FFFF && !isHigh(letter) && !isLow(letter);
}

void appendUtf8(std::string &text, char32_t letter)
{
    const auto add = [&text](char32_t byte) { text += static_cast<char>(byte); };
    const auto follow = [&](int shift) { add(0x80 | (letter >> shift & 0x3F)); };
    if (letter < 0x80) {
        add(letter);
    } else if (letter < 0x800) {
        add(0xC0 | letter >> 6);
        follow(0);
    } else if (letter < 0x10000) {
        add(0xE0 | letter >> 12);
        follow(6);
        follow(0);
    } else {
        add(0xF0 | letter >> 18);
        follow(12);
        follow(6);
        follow(0);
    }
}

std::string asUtf8(std::string bytes)
{
    using namespace std::string_view_literals;
    const std::string_view view = bytes;
    for (const auto &[mark, isBigEndian] :
         {std::pair("\xFF\xFE"sv, false), std::pair("\xFE\xFF"sv, true)}) {
        if (view.starts_with(mark))
            return fromUtf16(view.substr(mark.size()), isBigEndian);
    }
    for (const auto &[start, isBigEndian] : {std::pair("<\0"sv, false), std::pair("\0<"sv, true)}) {
        if (view.starts_with(start))
            return fromUtf16(view, isBigEndian);
    }
    if (view.starts_with("\xEF\xBB\xBF"sv))
        return bytes.substr(3);
    if (CPLIsUTF8(bytes.data(), static_cast<int>(bytes.size())))
        return bytes;
    const std::string encoding = declaredEncoding(bytes);
    if (encoding.empty() || EQUAL(encoding.c_str(), CPL_ENC_UTF8))
        return bytes;
    return converted(bytes, encoding).value_or(bytes);
}

} // namespace vlt::scene
