#include "plugins/tables/roles/NameWords.h"

#include <utf8proc.h>

#include <algorithm>
#include <cstdlib>
#include <memory>

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

std::string lowerAscii(std::string_view text)
{
    std::string lower(text);
    std::transform(lower.begin(), lower.end(), lower.begin(),
                   [](char c) { return isUpper(c) ? static_cast<char>(c + ('a' - 'A')) : c; });
    return lower;
}

bool isAscii(std::string_view text)
{
    return std::none_of(text.begin(), text.end(), [](char c) { return (c & 0x80) != 0; });
}

/// Splits a text into words that keep their letters as they are.
class Splitter
{
public:
    explicit Splitter(std::string_view name) : m_name(name) {}

    std::vector<std::string> words()
    {
        for (std::size_t at = 0; at < m_name.size();) {
            utf8proc_int32_t character = 0;
            const auto size =
                utf8proc_iterate(reinterpret_cast<const utf8proc_uint8_t *>(m_name.data()) + at,
                                 static_cast<utf8proc_ssize_t>(m_name.size() - at), &character);
            const std::size_t bytes = size > 0 ? static_cast<std::size_t>(size) : 1;
            take(m_name.substr(at, bytes), size > 0 ? character : 0);
            at += bytes;
        }
        endWord();
        return std::move(m_words);
    }

private:
    void take(std::string_view bytes, utf8proc_int32_t character)
    {
        const bool isAsciiByte = bytes.size() == 1;
        const bool isCapital = utf8proc_category(character) == UTF8PROC_CATEGORY_LU;
        const char c = isAsciiByte ? bytes[0] : isCapital ? 'A' : 'a';
        const bool isWord =
            isAsciiByte ? isUpper(c) || isDigit(c) || (c >= 'a' && c <= 'z') : isLetter(character);
        if (!isWord) {
            endWord();
            return;
        }
        if (!m_word.empty() &&
            ((isUpper(c) && !isUpper(m_before)) || isDigit(c) != isDigit(m_before)))
            endWord();
        m_word += bytes;
        m_before = c;
    }

    void endWord()
    {
        if (!m_word.empty())
            m_words.push_back(folded(m_word));
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
    if (isAscii(text))
        return lowerAscii(text);
    utf8proc_uint8_t *mapped = nullptr;
    const utf8proc_ssize_t size = utf8proc_map(
        reinterpret_cast<const utf8proc_uint8_t *>(text.data()),
        static_cast<utf8proc_ssize_t>(text.size()), &mapped,
        static_cast<utf8proc_option_t>(UTF8PROC_DECOMPOSE | UTF8PROC_COMPAT | UTF8PROC_CASEFOLD |
                                       UTF8PROC_STRIPMARK | UTF8PROC_IGNORE));
    const std::unique_ptr<utf8proc_uint8_t, decltype(&std::free)> owner(mapped, &std::free);
    if (size < 0)
        return lowerAscii(text);
    return {reinterpret_cast<const char *>(mapped), static_cast<std::size_t>(size)};
}

std::vector<std::string> nameWords(std::string_view name)
{
    return Splitter(name).words();
}

} // namespace vlt::driver
