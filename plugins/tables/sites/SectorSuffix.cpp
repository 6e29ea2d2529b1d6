#include "plugins/tables/sites/SectorSuffix.h"

namespace vlt::driver {

namespace {

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool isLetter(char c)
{
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

} // namespace

std::string_view withoutSector(std::string_view name, const Vocabulary &vocabulary)
{
    constexpr std::string_view Separators = " _-./";
    const std::size_t word = name.find_last_of(Separators) + 1; // 0 if there is one word
    if (word > 0 && vocabulary.numberOfSectorName(name.substr(word)) > 0)
        return name.substr(0, name.substr(0, word).find_last_not_of(Separators) + 1);
    std::size_t end = name.size();
    std::size_t digits = 0;
    while (end > 0 && digits < 2 && isDigit(name[end - 1])) {
        --end;
        ++digits;
    }
    // one letter, alone or before the digits
    const bool hasLetter = end > 0 && isLetter(name[end - 1]);
    if (hasLetter)
        --end;
    else if (digits == 0)
        return name;
    const std::size_t last = name.substr(0, end).find_last_not_of(Separators);
    if (last == std::string_view::npos || last + 1 == end)
        return name; // the end is part of a word
    return name.substr(0, last + 1);
}

} // namespace vlt::driver
