#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace vlt::contract {

/// What a value of a text is.
enum class ValueKind {
    Name,   ///< any text: a file, a field, what stands in a cell
    Count,  ///< digits
    Item,   ///< a word of a format, perhaps with a number: "transmitter 3"
    Nested, ///< a text of the tables itself, or the words of a library
};

inline constexpr std::size_t MaxTextValues = 5;

/// A text that a reader of tables or scenes gives its user.
///
/// The pattern is the English text with the places "%1", "%2" ... of its values, in this order. It
/// starts with words, a count or an item, and words that no value holds stand between two places,
/// so that a finished text can be taken apart again.
struct Text
{
    const char *key; ///< message key of the translations
    const char *pattern;
    std::array<ValueKind, MaxTextValues> kinds{}; ///< of the values, in their order
};

/// Names a text of a table by its key; a key that is not in it does not compile.
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
