#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace vlt::driver {

enum class Direction { North, South, East, West };

/// The words for directions in values and in names of columns: Nord, Ouest, NB.
class HemisphereWords
{
public:
    /// Adds a word of a language. Single letters of one language are left out, because many have
    /// several meanings.
    ///
    /// @param languages  bit of the language; 0 for all
    void add(Direction direction, std::string_view word, std::uint32_t languages);

    /// The meaning of a word.
    struct Meaning
    {
        Direction direction = Direction::North;
        std::uint32_t languages = 0; ///< bits of those that have the word
        bool startsWithO = false;    ///< without accents
    };
    /// The meaning of a value of at least two letters: the whole word, or three letters of it or
    /// more. Nothing for other texts, and for the start of words with different meanings.
    std::optional<Meaning> find(std::string_view text) const;

    /// Whether a word of a column name means a direction. Of the letters, only N, S, E and W do,
    /// and of the words only those of three bytes or more, because shorter ones have other
    /// meanings.
    bool isInNames(Direction direction, std::string_view word) const;

private:
    struct Entry
    {
        std::uint32_t directions = 0;  ///< bits
        std::uint32_t ofWholeWord = 0; ///< bits of the directions of which this is the whole word
        std::uint32_t languages = 0;
    };

    std::unordered_map<std::string, Entry> m_starts; ///< folded words and their starts
};

} // namespace vlt::driver
