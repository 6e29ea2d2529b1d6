#include "plugins/tables/values/GridReference.h"

#include "plugins/tables/cells/Cell.h"

#include <string>

namespace vlt::driver {

namespace {

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

/// Whether a character is a letter from A to `last`, in any case.
bool isLetterTo(char last, char c)
{
    const char upper = static_cast<char>(c & ~0x20);
    return upper >= 'A' && upper <= last;
}

/// Letters of the grid; I and O look like numbers.
bool isGridLetter(char c)
{
    const char upper = static_cast<char>(c & ~0x20);
    return isLetterTo('Z', c) && upper != 'I' && upper != 'O';
}

} // namespace

bool isMgrsReference(std::string_view text)
{
    constexpr std::size_t MaxSize = 24;
    constexpr std::size_t Letters = 3;
    text = trimmed(text);
    if (text.size() > MaxSize)
        return false;
    std::string packed;
    for (const char c : text) {
        if (c != ' ')
            packed += c;
    }
    std::size_t at = 0;
    while (at < packed.size() && at < 2 && isDigit(packed[at]))
        ++at;
    const std::size_t digits = packed.size() < at + Letters ? 0 : packed.size() - at - Letters;
    if (at == 0 || digits < 4 || digits > 10 || digits % 2 != 0)
        return false;
    for (std::size_t i = 0; i < packed.size() - at; ++i) {
        if (i < Letters ? !isGridLetter(packed[at + i]) : !isDigit(packed[at + i]))
            return false;
    }
    return true;
}

bool isMaidenheadSquare(std::string_view text)
{
    constexpr std::size_t SizeOfSquare = 6;
    constexpr std::size_t SizeOfPart = 8;
    text = trimmed(text);
    if (text.size() != SizeOfSquare && text.size() != SizeOfPart)
        return false;
    const bool isSquare = isLetterTo('R', text[0]) && isLetterTo('R', text[1]) &&
                          isDigit(text[2]) && isDigit(text[3]) && isLetterTo('X', text[4]) &&
                          isLetterTo('X', text[5]);
    return isSquare && (text.size() == SizeOfSquare || (isDigit(text[6]) && isDigit(text[7])));
}

} // namespace vlt::driver
