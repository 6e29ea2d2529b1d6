#include "plugins/tables/links/EndWords.h"

#include "plugins/tables/table/HeaderWords.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace vlt::driver {

namespace {

constexpr std::array WordsOfA = {"a", "tx", "near", "from", "start", "transmitter"};
constexpr std::array WordsOfB = {"b", "rx", "far", "to", "end", "receiver"};
/// These words name an end only if no other word does: near end, end A, TX (transmitter).
constexpr std::array WeakWords = {"end", "transmitter", "receiver"};

bool isIn(const auto &list, std::string_view word)
{
    return std::find(list.begin(), list.end(), word) != list.end();
}

LinkEndId namedEnd(std::string_view word)
{
    return isIn(WordsOfA, word)   ? LinkEndId::A
           : isIn(WordsOfB, word) ? LinkEndId::B
                                  : LinkEndId::None;
}

LinkEndId numberedEnd(std::string_view word, EndStyle style)
{
    const bool zero = style == EndStyle::Zero;
    return word == (zero ? "0" : "1")   ? LinkEndId::A
           : word == (zero ? "1" : "2") ? LinkEndId::B
                                        : LinkEndId::None;
}

constexpr std::size_t NotThere = std::string::npos;

/// The index of the word that names the end: the first one ("Site A X", "X A"), but a weak word
/// only if there is no other one.
std::size_t findNamed(const std::vector<std::string> &words)
{
    std::size_t last = NotThere;
    for (std::size_t at = 0; at < words.size(); ++at) {
        if (namedEnd(words[at]) == LinkEndId::None)
            continue;
        if (!isIn(WeakWords, words[at]))
            return at;
        last = at;
    }
    return last;
}

/// The index of the last digit that is a word: "TX1 (MHz) 2", "Azimuth (deg 1) 2".
std::size_t findNumber(const std::vector<std::string> &words, EndStyle style)
{
    for (std::size_t at = words.size(); at-- > 0;) {
        if (numberedEnd(words[at], style) != LinkEndId::None)
            return at;
    }
    return NotThere;
}

} // namespace

EndWords readEndWords(const std::string &name, EndStyle style)
{
    EndWords result;
    result.words = linkWordsOf(name);
    std::vector<std::string> &words = result.words;
    const std::size_t named = findNamed(words);
    const std::size_t number = findNumber(words, style);
    result.isNumbered = number != NotThere && (named == NotThere || style != EndStyle::Names);
    const std::size_t at = result.isNumbered ? number : named;
    if (at == NotThere)
        return result;
    result.end = result.isNumbered ? numberedEnd(words[at], style) : namedEnd(words[at]);
    result.endWord = words[at];
    result.endIndex = at;
    words.erase(words.begin() + static_cast<std::ptrdiff_t>(at));
    const auto isHelper = [](const std::string &word) {
        return word == "site" || isIn(WeakWords, word);
    };
    if (words.size() > 1)
        words.erase(std::remove_if(words.begin(), words.end(), isHelper), words.end());
    return result;
}

} // namespace vlt::driver
