#include "plugins/tables/values/Hemisphere.h"

#include "plugins/tables/table/HeaderWords.h"

#include <algorithm>
#include <array>

namespace vlt::driver {

namespace {

using contract::TableTextId;

/// A direction and what it shows about the letter O in the same column.
struct Direction
{
    Axis axis = Axis::X;
    int sign = 0;
    LetterO letterO = LetterO::Unknown;
};

constexpr Direction North = {Axis::Y, 1};
constexpr Direction South = {Axis::Y, -1};
constexpr Direction East = {Axis::X, 1, LetterO::West};
constexpr Direction West = {Axis::X, -1, LetterO::East};
constexpr Direction EastByO = {Axis::X, 1, LetterO::East};
constexpr Direction WestByO = {Axis::X, -1, LetterO::West};

/// The beginning of a word for a direction; two letters are the whole word.
struct Beginning
{
    std::string_view letters;
    Direction direction;
};

/// The beginnings of the words of western European languages, and the Dutch abbreviations NB, ZB,
/// OL and WL.
constexpr std::array Beginnings = {
    Beginning{"nor", North},   Beginning{"noor", North},  Beginning{"nb", North},
    Beginning{"sou", South},   Beginning{"sud", South},   Beginning{"sur", South},
    Beginning{"sul", South},   Beginning{"süd", South},   Beginning{"sÜd", South},
    Beginning{"zui", South},   Beginning{"zb", South},    Beginning{"eas", East},
    Beginning{"est", East},    Beginning{"les", East},    Beginning{"ost", EastByO},
    Beginning{"oos", EastByO}, Beginning{"ol", EastByO},  Beginning{"wes", West},
    Beginning{"wl", West},     Beginning{"oue", WestByO}, Beginning{"oes", WestByO},
    Beginning{"ove", WestByO},
};

constexpr std::size_t MaxWordSize = 7; ///< bytes: western, but not estimated

bool isLetter(char c)
{
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

/// Size of the word at the start of a text, in bytes; umlauts belong to it.
std::size_t wordSize(std::string_view text)
{
    std::size_t size = 0;
    while (size < text.size()) {
        if (isLetter(text[size]))
            ++size;
        else if (text[size] == '\xC3' && size + 1 < text.size())
            size += 2;
        else
            break;
    }
    return size;
}

const Direction *wordDirection(std::string_view word)
{
    if (word.size() < 2 || word.size() > MaxWordSize)
        return nullptr;
    const std::string lower = lowerCase(word);
    const auto found = std::find_if(Beginnings.begin(), Beginnings.end(), [&](const Beginning &of) {
        return of.letters.size() > 2 ? lower.starts_with(of.letters) : lower == of.letters;
    });
    return found == Beginnings.end() ? nullptr : &found->direction;
}

const Direction *letterDirection(char letter)
{
    switch (letter & ~0x20) {
    case 'N':
        return &North;
    case 'S':
        return &South;
    case 'E':
        return &East;
    case 'W':
        return &West;
    default:
        return nullptr;
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
    const Direction *ofWord = wordDirection(text.substr(0, size));
    const Direction *direction = ofWord ? ofWord : letterDirection(text[0]);
    if (!direction && isLetterO(text[0])) {
        if (size > 1 || letterO == LetterO::Unknown)
            return refused("MESS_TAB_LETTER_O");
        direction = letterO == LetterO::West ? &WestByO : &EastByO;
    }
    if (!direction)
        return refused("MESS_TAB_NO_HEMISPHERE");
    if (direction->axis != axis)
        return refused("MESS_TAB_OTHER_AXIS");
    return {direction->sign, ofWord ? size : 1, std::nullopt};
}

LetterO meaningOfO(const std::vector<std::string> &texts, LetterO otherwise)
{
    bool isWest = false;
    bool isEast = false;
    for (const std::string &text : texts) {
        for (std::size_t at = 0; at < text.size();) {
            const std::string_view rest = std::string_view(text).substr(at);
            const std::size_t size = wordSize(rest);
            const Direction *direction = wordDirection(rest.substr(0, size));
            if (!direction && size == 1)
                direction = letterDirection(rest[0]);
            isWest = isWest || (direction && direction->letterO == LetterO::West);
            isEast = isEast || (direction && direction->letterO == LetterO::East);
            at += std::max<std::size_t>(size, 1);
        }
    }
    if (isWest && isEast)
        return LetterO::Unknown;
    return isWest ? LetterO::West : isEast ? LetterO::East : otherwise;
}

} // namespace vlt::driver
