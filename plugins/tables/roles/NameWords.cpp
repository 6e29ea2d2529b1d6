#include "plugins/tables/roles/NameWords.h"

#include <utf8proc.h>

#include <algorithm>
#include <array>
#include <utility>

namespace vlt::driver {

namespace {

bool isUpper(char c)
{
    return c >= 'A' && c <= 'Z';
}

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

/// Whether the category of a character beyond ASCII is that of letters, digits or their marks; the
/// ordinal signs stand for degree signs.
bool isLetter(utf8proc_int32_t character)
{
    if (character == 0xAA || character == 0xBA)
        return false;
    const utf8proc_category_t category = utf8proc_category(character);
    return category >= UTF8PROC_CATEGORY_LU && category <= UTF8PROC_CATEGORY_NO;
}

char lowerLetter(char c)
{
    return isUpper(c) ? static_cast<char>(c + ('a' - 'A')) : c;
}

std::string lowerAscii(std::string_view text)
{
    std::string lower(text);
    std::transform(lower.begin(), lower.end(), lower.begin(), lowerLetter);
    return lower;
}

/// The character at the start of a text, which is not empty, and its size in bytes; the size is 0
/// if the text is no UTF-8.
std::pair<utf8proc_int32_t, std::size_t> firstCharacter(std::string_view text)
{
    if ((text[0] & 0x80) == 0)
        return {text[0], 1};
    utf8proc_int32_t character = 0;
    const auto size = utf8proc_iterate(reinterpret_cast<const utf8proc_uint8_t *>(text.data()),
                                       static_cast<utf8proc_ssize_t>(text.size()), &character);
    return {character, size > 0 ? static_cast<std::size_t>(size) : 0};
}

/// Appends a character without its case and accents.
void appendFolded(std::string &to, utf8proc_int32_t character)
{
    if (character < 0x80) {
        to += lowerLetter(static_cast<char>(character));
        return;
    }
    constexpr std::size_t MaxParts = 32; // no character has more than 18
    std::array<utf8proc_int32_t, MaxParts> parts{};
    int boundary = 0;
    const utf8proc_ssize_t count = utf8proc_decompose_char(
        character, parts.data(), parts.size(),
        static_cast<utf8proc_option_t>(UTF8PROC_DECOMPOSE | UTF8PROC_COMPAT | UTF8PROC_CASEFOLD |
                                       UTF8PROC_STRIPMARK | UTF8PROC_IGNORE),
        &boundary);
    for (utf8proc_ssize_t i = 0; i < std::min<utf8proc_ssize_t>(count, MaxParts); ++i) {
        std::array<utf8proc_uint8_t, 4> bytes{};
        const auto size = utf8proc_encode_char(parts[static_cast<std::size_t>(i)], bytes.data());
        to.append(reinterpret_cast<const char *>(bytes.data()), static_cast<std::size_t>(size));
    }
}

/// Splits a text into folded words.
class Splitter
{
public:
    explicit Splitter(std::string_view name) : m_name(name) {}

    std::vector<std::string> words()
    {
        m_words.reserve(4); // most names have no more
        for (std::size_t at = 0; at < m_name.size();) {
            const auto [character, size] = firstCharacter(m_name.substr(at));
            take(size > 0 ? character : 0);
            at += std::max<std::size_t>(size, 1);
        }
        endWord();
        return std::move(m_words);
    }

private:
    void take(utf8proc_int32_t character)
    {
        const bool isAscii = character < 0x80;
        const char c = isAscii ? static_cast<char>(character)
                       : utf8proc_category(character) == UTF8PROC_CATEGORY_LU ? 'A'
                                                                              : 'a';
        const bool isWord =
            isAscii ? isUpper(c) || isDigit(c) || (c >= 'a' && c <= 'z') : isLetter(character);
        if (!isWord) {
            endWord();
            return;
        }
        if (!m_word.empty() &&
            ((isUpper(c) && !isUpper(m_before)) || isDigit(c) != isDigit(m_before)))
            endWord();
        appendFolded(m_word, character);
        m_before = c;
    }

    void endWord()
    {
        if (!m_word.empty())
            m_words.push_back(std::move(m_word));
        m_word.clear();
    }

    std::string_view m_name;
    std::string m_word;
    char m_before = ' ';
    std::vector<std::string> m_words;
};

} // namespace

std::string folded(std::string_view text)
{
    if (std::none_of(text.begin(), text.end(), [](char c) { return (c & 0x80) != 0; }))
        return lowerAscii(text);
    std::string result;
    result.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        const auto [character, size] = firstCharacter(text.substr(at));
        if (size == 0)
            return lowerAscii(text);
        appendFolded(result, character);
        at += size;
    }
    return result;
}

std::vector<std::string> nameWords(std::string_view name)
{
    return Splitter(name).words();
}

} // namespace vlt::driver
