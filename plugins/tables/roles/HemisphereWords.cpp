#include "plugins/tables/roles/HemisphereWords.h"

#include "plugins/tables/roles/NameWords.h"

#include <algorithm>
#include <bit>
#include <vector>

namespace vlt::driver {

namespace {

constexpr std::size_t MaxWordSize = 40; ///< bytes; longer texts are no words for directions

/// The sizes in bytes at which the characters of a text end.
std::vector<std::size_t> characterEnds(std::string_view text)
{
    std::vector<std::size_t> ends;
    for (std::size_t at = 1; at <= text.size(); ++at) {
        if (at == text.size() || (text[at] & 0xC0) != 0x80)
            ends.push_back(at);
    }
    return ends;
}

} // namespace

void HemisphereWords::add(Direction direction, std::string_view word, std::uint32_t languages)
{
    constexpr std::size_t MinCharacters = 2;
    constexpr std::size_t MinCharactersOfStart = 3;
    const std::string key = folded(word);
    const std::vector<std::size_t> ends = characterEnds(key);
    const bool isOneWord = key.find_first_of(" .'\"") == std::string::npos;
    const bool isLetter = ends.size() < MinCharacters;
    if (!isOneWord || ends.empty() || (isLetter && languages != 0) || key.size() > MaxWordSize)
        return;
    const std::uint32_t bit = std::uint32_t{1} << static_cast<unsigned>(direction);
    m_starts[key].ofWholeWord |= bit;
    const std::size_t first = std::min(MinCharactersOfStart, ends.size());
    for (std::size_t count = first; count <= ends.size(); ++count) {
        Entry &entry = m_starts[key.substr(0, ends[count - 1])];
        entry.directions |= bit;
        entry.languages |= languages;
    }
}

std::optional<HemisphereWords::Meaning> HemisphereWords::find(std::string_view text) const
{
    if (text.size() < 2 || text.size() > MaxWordSize)
        return std::nullopt;
    const std::string key = folded(text);
    const auto found = m_starts.find(key);
    if (found == m_starts.end() || !std::has_single_bit(found->second.directions))
        return std::nullopt;
    return Meaning{static_cast<Direction>(std::countr_zero(found->second.directions)),
                   found->second.languages, key.front() == 'o'};
}

bool HemisphereWords::isInNames(Direction direction, std::string_view word) const
{
    constexpr std::size_t MinWordSize = 3; // B is west in Turkish, and an end of a link
    if (word.size() > MaxWordSize)
        return false;
    const auto found = m_starts.find(folded(word));
    return found != m_starts.end() &&
           (found->second.ofWholeWord >> static_cast<unsigned>(direction) & 1) != 0 &&
           (word.size() == 1 || word.size() >= MinWordSize);
}

} // namespace vlt::driver
