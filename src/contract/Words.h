#pragma once

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string_view>

namespace vlt::contract {

/// Whether two words are equal apart from the case of their ASCII letters.
constexpr bool isSameWord(std::string_view one, std::string_view other)
{
    const auto lowered = [](char c) { return c >= 'A' && c <= 'Z' ? char(c - 'A' + 'a') : c; };
    return std::equal(one.begin(), one.end(), other.begin(), other.end(),
                      [lowered](char a, char b) { return lowered(a) == lowered(b); });
}

/// The word for a value; `words` are in the order of the enumeration.
template<typename Value, std::size_t N>
constexpr const char *wordOf(const char *const (&words)[N], Value value)
{
    return words[static_cast<std::size_t>(value)];
}

/// The value for a word, in any case of its letters; nothing for other words.
template<typename Value, std::size_t N>
constexpr std::optional<Value> valueOf(const char *const (&words)[N], std::string_view word)
{
    for (std::size_t i = 0; i < N; ++i) {
        if (isSameWord(words[i], word))
            return static_cast<Value>(i);
    }
    return std::nullopt;
}

} // namespace vlt::contract
