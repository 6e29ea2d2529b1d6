#include "plugins/tables/values/Hemisphere.h"

#include "plugins/tables/roles/Vocabulary.h"

#include <algorithm>

namespace vlt::driver {

namespace {

using contract::TableTextId;

/// What a letter or word says, and what it shows about the letter O in the same column.
struct Meaning
{
    Axis axis = Axis::X;
    int sign = 0;
    LetterO letterO = LetterO::Unknown;
};

Meaning meaningOf(Direction direction, LetterO letterO)
{
    const bool isOfY = direction == Direction::North || direction == Direction::South;
    const bool isNegative = direction == Direction::South || direction == Direction::West;
    return {isOfY ? Axis::Y : Axis::X, isNegative ? -1 : 1, isOfY ? LetterO::Unknown : letterO};
}

/// The meaning of O beside E or W.
LetterO beside(Direction direction)
{
    return direction == Direction::East ? LetterO::West : LetterO::East;
}

bool isLetter(char c)
{
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

/// Whether a letter beyond ASCII starts here: those of European languages and Hebrew have two
/// bytes.
bool startsLetter(std::string_view text)
{
    const auto byte = static_cast<unsigned char>(text.empty() ? 0 : text[0]);
    const bool isLatin = byte >= 0xC3 && byte <= 0xC9;
    const bool isOther = byte >= 0xCE && byte <= 0xD7;
    return (isLatin || isOther) && text.size() > 1;
}

/// Size of the word at the start of a text, in bytes.
std::size_t wordSize(std::string_view text)
{
    std::size_t size = 0;
    while (size < text.size()) {
        if (isLetter(text[size]))
            ++size;
        else if (startsLetter(text.substr(size)))
            size += 2;
        else
            break;
    }
    return size;
}

std::optional<Meaning> wordMeaning(std::string_view word)
{
    const Vocabulary &vocabulary = installedVocabulary().words;
    const auto found = vocabulary.hemispheres().find(word);
    if (!found)
        return std::nullopt;
    const int sign = vocabulary.signOfO(found->languages);
    const LetterO own = found->direction == Direction::East ? LetterO::East : LetterO::West;
    return meaningOf(found->direction, sign < 0             ? LetterO::West
                                       : sign > 0           ? LetterO::East
                                       : found->startsWithO ? own
                                                            : beside(found->direction));
}

std::optional<Meaning> letterMeaning(char letter)
{
    switch (letter & ~0x20) {
    case 'N':
        return meaningOf(Direction::North, LetterO::Unknown);
    case 'S':
        return meaningOf(Direction::South, LetterO::Unknown);
    case 'E':
        return meaningOf(Direction::East, beside(Direction::East));
    case 'W':
        return meaningOf(Direction::West, beside(Direction::West));
    default:
        return std::nullopt;
    }
}

bool isLetterO(char c)
{
    return c == 'O' || c == 'o';
}

} // namespace

Hemisphere readHemisphere(std::string_view text, Axis axis, LetterO letterO)
{
    const auto refused = [](TableTextId why) { return Hemisphere{0, 1, why}; };
    const std::size_t size = wordSize(text);
    if (size == 0)
        return refused("MESS_TAB_NO_HEMISPHERE");
    const std::optional<Meaning> ofWord = wordMeaning(text.substr(0, size));
    std::optional<Meaning> meaning = ofWord ? ofWord : letterMeaning(text[0]);
    if (!meaning && isLetterO(text[0])) {
        if (size > 1 || letterO == LetterO::Unknown)
            return refused("MESS_TAB_LETTER_O");
        meaning = meaningOf(letterO == LetterO::West ? Direction::West : Direction::East, letterO);
    }
    if (!meaning)
        return refused("MESS_TAB_NO_HEMISPHERE");
    if (meaning->axis != axis)
        return refused("MESS_TAB_OTHER_AXIS");
    return {meaning->sign, ofWord ? size : 1, std::nullopt};
}

LetterO meaningOfO(const std::vector<std::string> &texts, LetterO otherwise)
{
    bool isWest = false;
    bool isEast = false;
    for (const std::string &text : texts) {
        for (std::size_t at = 0; at < text.size();) {
            const std::string_view rest = std::string_view(text).substr(at);
            const std::size_t size = wordSize(rest);
            std::optional<Meaning> meaning = wordMeaning(rest.substr(0, size));
            if (!meaning && size == 1)
                meaning = letterMeaning(rest[0]);
            isWest = isWest || (meaning && meaning->letterO == LetterO::West);
            isEast = isEast || (meaning && meaning->letterO == LetterO::East);
            at += std::max<std::size_t>(size, 1);
        }
    }
    if (isWest && isEast)
        return LetterO::Unknown;
    return isWest ? LetterO::West : isEast ? LetterO::East : otherwise;
}

} // namespace vlt::driver
