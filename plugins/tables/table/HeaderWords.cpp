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

/// Words in the column names of English, French, German, Spanish and Italian tables.
constexpr std::array SiteWords = {
    "site",     "sites",       "name",        "nom",         "id",          "x",
    "y",        "lon",         "long",        "lng",         "longitude",   "longitud",
    "lat",      "latitude",    "latitud",     "latitudine",  "breite",      "laenge",
    "azimuth",  "azimut",      "azimutes",    "height",      "hauteur",     "altura",
    "hoehe",    "tilt",        "downtilt",    "inclinaison", "transmitter", "sector",
    "secteur",  "antenna",     "antenne",     "antena",      "easting",     "northing",
    "cellname", "coordinates", "longitudine", "site_id",     "gps"};

/// Further words in tables of links.
constexpr std::array LinkWords = {
    "link", "links",  "liaison",  "hop",       "tx",        "rx",       "frequency", "freq",
    "band", "length", "distance", "longueur",  "path",      "callsign", "call",      "dx",
    "dy",   "dł",     "sz",       "fréquence", "frequence", "frequenz", "länge"};

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

bool isTableWord(std::string_view name, contract::TableKind kind)
{
    const auto isIn = [](const auto &list, const std::string &word) {
        return std::find(list.begin(), list.end(), word) != list.end();
    };
    const bool links = kind == contract::TableKind::Links;
    const std::vector<std::string> words = links ? linkWordsOf(name) : wordsOf(name);
    return std::any_of(words.begin(), words.end(), [&](const std::string &word) {
        return isIn(SiteWords, word) || (links && isIn(LinkWords, word));
    });
}

} // namespace vlt::driver
