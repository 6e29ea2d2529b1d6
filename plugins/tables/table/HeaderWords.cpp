#include "plugins/tables/table/HeaderWords.h"

#include <algorithm>
#include <array>

namespace vlt::driver {

namespace {

bool isUpper(char c)
{
    return c >= 'A' && c <= 'Z';
}

bool isWordByte(char c)
{
    return (c >= 'a' && c <= 'z') || isUpper(c) || (c >= '0' && c <= '9') || (c & 0x80) != 0;
}

/// Words that the name of an end can follow without a separator.
constexpr std::array WordsWithEnd = {"x",         "y",      "lon",      "long",      "lng",
                                     "longitude", "lat",    "latitude", "easting",   "northing",
                                     "azimuth",   "height", "tilt",     "dx",        "dy",
                                     "site",      "name",   "id",       "frequency", "freq"};
constexpr std::array FusedEnds = {"start", "end", "from", "to", "tx", "rx",
                                  "a",     "b",   "0",    "1",  "2"};

/// The number of bytes before the name of an end at the end of a word; 0 without such a name.
std::size_t sizeBeforeEnd(std::string_view word)
{
    for (const std::string_view end : FusedEnds) {
        if (word.size() <= end.size() || !word.ends_with(end))
            continue;
        const std::string_view before = word.substr(0, word.size() - end.size());
        if (std::find(WordsWithEnd.begin(), WordsWithEnd.end(), before) != WordsWithEnd.end())
            return before.size();
    }
    return 0;
}

} // namespace

std::string lowerCase(std::string_view text)
{
    std::string lower(text);
    std::transform(lower.begin(), lower.end(), lower.begin(),
                   [](char c) { return isUpper(c) ? static_cast<char>(c + ('a' - 'A')) : c; });
    return lower;
}

std::vector<std::string> wordsOf(std::string_view name)
{
    std::vector<std::string> words;
    std::string word;
    char before = ' ';
    for (const char c : name) {
        const bool boundary = isUpper(c) && !isUpper(before) && isWordByte(before);
        if ((!isWordByte(c) || boundary) && !word.empty()) {
            words.push_back(lowerCase(word));
            word.clear();
        }
        if (isWordByte(c))
            word += c;
        before = c;
    }
    if (!word.empty())
        words.push_back(lowerCase(word));
    return words;
}

std::vector<std::string> linkWordsOf(std::string_view name)
{
    std::vector<std::string> words;
    for (const std::string &word : wordsOf(name)) {
        const std::size_t cut = sizeBeforeEnd(word);
        if (cut > 0)
            words.push_back(word.substr(0, cut));
        words.push_back(word.substr(cut));
    }
    return words;
}

} // namespace vlt::driver
