#include "plugins/tables/roles/HeightBase.h"

#include "plugins/tables/cells/Cell.h"
#include "plugins/tables/roles/NameWords.h"

#include <algorithm>

namespace vlt::driver {

namespace {

constexpr std::string_view Digits = "0123456789";
constexpr std::size_t MaxSize = 60; ///< bytes; longer texts are remarks

/// What a height is measured from.
enum class Base { NotStated, Ground, Sea };

/// What the words around a number say; those for units do not count.
Base baseOf(std::string_view height, const Vocabulary &vocabulary)
{
    std::string words;
    for (const std::string &word : nameWords(height)) {
        const WordMeaning *unit = vocabulary.find(word);
        if (Digits.find(word[0]) == std::string_view::npos && !(unit && unit->metres))
            words += word;
    }
    const WordMeaning *meaning = vocabulary.find(words);
    const auto names = [meaning](Role role) {
        return meaning && meaning->roles.test(static_cast<std::size_t>(role));
    };
    return names(Role::SeaLevelHeight)                                ? Base::Sea
           : names(Role::AntennaHeight) && !names(Role::GroundHeight) ? Base::Ground
                                                                      : Base::NotStated;
}

/// The number in a text, with the unit behind it.
std::string_view numberWithUnit(std::string_view text, const Vocabulary &vocabulary)
{
    const std::size_t begin = text.find_first_of(Digits);
    const std::size_t number = text.find_first_not_of("0123456789.,", begin);
    const std::size_t unit = text.find_first_not_of(' ', number);
    const std::size_t end = std::min(text.find_first_of(" .,;:()[]", unit), text.size());
    if (unit >= end)
        return text.substr(begin, number - begin);
    const WordMeaning *meaning = vocabulary.find(folded(text.substr(unit, end - unit)));
    return text.substr(begin, (meaning && meaning->metres ? end : number) - begin);
}

/// Where the first of several heights ends.
std::size_t endOfFirst(std::string_view text)
{
    const std::size_t end = text.find_first_of("/;|\n(");
    const bool isRemark = end != std::string_view::npos && text[end] == '(' &&
                          text.find_first_of(Digits, end) == std::string_view::npos;
    return std::min(isRemark ? std::string_view::npos : std::min(end, text.find(", ")),
                    text.size());
}

} // namespace

std::string_view heightAboveGround(std::string_view text, const Vocabulary &vocabulary)
{
    constexpr std::ptrdiff_t MinLetters = 3; // a unit has fewer
    const auto isLetter = [](char c) {
        return (c & 0x80) != 0 || ((c | 0x20) >= 'a' && (c | 0x20) <= 'z');
    };
    if (text.size() > MaxSize || std::count_if(text.begin(), text.end(), isLetter) < MinLetters)
        return text;
    std::string_view found;
    for (std::string_view rest = text; !rest.empty();) {
        const std::size_t end = endOfFirst(rest);
        const std::string_view height = rest.substr(0, end);
        const Base base = height.find_first_of(Digits) == std::string_view::npos
                              ? Base::NotStated
                              : baseOf(height, vocabulary);
        if (base == Base::NotStated || (base == Base::Ground && !found.empty()))
            return text;
        if (base == Base::Ground)
            found = numberWithUnit(height, vocabulary);
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return found.empty() ? text : found;
}

} // namespace vlt::driver
