#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace vlt::contract {

/// The kind of a value in a text.
enum class ValueKind {
    Name,   ///< any text, such as the name of a file or field or the content of a cell
    Count,  ///< digits
    Item,   ///< a word of a format that may have a number: "transmitter 3"
    Nested, ///< another text of the tables of texts, or a message of a library
};

inline constexpr std::size_t MaxTextValues = 5;

/// A message of the table readers or the scene readers.
///
/// The pattern is the English text with the placeholders "%1", "%2" ... for its values, in this
/// order. It starts with words, a count or an item, and between two placeholders it has words that
/// no value contains, so that the values can be found again in a finished text.
struct Text
{
    const char *key; ///< message key of the translations
    const char *pattern;
    std::array<ValueKind, MaxTextValues> kinds{}; ///< of the values, in the same order
};

/// Refers to a text in a table of texts by its key; a key that is not in the table does not
/// compile.
template<const auto &Table>
class TextIdOf
{
public:
    consteval TextIdOf(const char *key) : m_index(indexOf(key)) {}

    constexpr const Text &text() const { return Table[m_index]; }

private:
    static consteval std::size_t indexOf(const char *key)
    {
        std::size_t index = 0;
        while (std::string_view(Table.at(index).key) != key)
            ++index;
        return index;
    }

    std::size_t m_index;
};

} // namespace vlt::contract
