#include "contract/ColumnPattern.h"

#include <stdexcept>
#include <utility>

#define PCRE2_CODE_UNIT_WIDTH 8
#include <pcre2.h>

namespace vlt::contract {

namespace {

/// Real names are shorter. The limit keeps matching cheap for hostile files.
constexpr std::size_t MaxNameBytes = 1000;

struct MatchRelease
{
    void operator()(pcre2_match_data *data) const { pcre2_match_data_free(data); }
};

PCRE2_SPTR bytesOf(std::string_view text)
{
    return reinterpret_cast<PCRE2_SPTR>(text.data());
}

std::string fromLatin1(std::string_view bytes)
{
    std::string text;
    for (const char c : bytes) {
        const auto letter = static_cast<unsigned char>(c);
        if (letter >= 0x80)
            text += static_cast<char>(0xC0 | letter >> 6);
        text += static_cast<char>(letter >= 0x80 ? 0x80 | (letter & 0x3F) : letter);
    }
    return text;
}

} // namespace

ColumnPattern::ColumnPattern(const std::string &pattern)
{
    const std::string whole = "\\A(?:" + pattern + ")\\z";
    int error = 0;
    PCRE2_SIZE at = 0;
    m_code.reset(pcre2_compile(bytesOf(whole), whole.size(),
                               PCRE2_CASELESS | PCRE2_DOTALL | PCRE2_UTF | PCRE2_UCP, &error, &at,
                               nullptr),
                 pcre2_code_free);
    if (!m_code)
        throw std::invalid_argument("not a pattern: " + pattern);
}

bool ColumnPattern::matches(std::string_view name) const
{
    if (name.size() > MaxNameBytes)
        return false;
    const std::unique_ptr<pcre2_match_data, MatchRelease> data(
        pcre2_match_data_create_from_pattern(m_code.get(), nullptr));
    return pcre2_match(m_code.get(), bytesOf(name), name.size(), 0, 0, data.get(), nullptr) >= 0;
}

std::string plainColumnName(std::string_view name)
{
    static const ColumnPattern anyText(".*"); // matches all valid UTF-8
    constexpr std::pair<std::string_view, std::string_view> Replaced[] = {
        {"\u00a0", " "}, // no-break space
        {"\u0130", "I"}, // capital i with a dot, in Turkish
    };
    std::string plain = anyText.matches(name) ? std::string(name) : fromLatin1(name);
    for (const auto &[letter, replacement] : Replaced) {
        for (std::size_t at = plain.find(letter); at != std::string::npos;
             at = plain.find(letter, at))
            plain.replace(at, letter.size(), replacement);
    }
    return plain;
}

} // namespace vlt::contract
