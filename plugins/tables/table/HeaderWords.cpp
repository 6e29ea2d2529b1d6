#include "table/HeaderWords.h"

#include <algorithm>
#include <array>

namespace vlt::tables {

namespace {

bool isUpper(char c)
{
    return c >= 'A' && c <= 'Z';
}

bool isWordByte(char c)
{
    return (c >= 'a' && c <= 'z') || isUpper(c) || (c >= '0' && c <= '9') || (c & 0x80) != 0;
}

/// Column names in English, French, German, Spanish and Italian tables.
constexpr std::array SiteWords = {
    "site",     "sites",       "name",        "nom",         "id",          "x",
    "y",        "lon",         "long",        "lng",         "longitude",   "longitud",
    "lat",      "latitude",    "latitud",     "latitudine",  "breite",      "laenge",
    "azimuth",  "azimut",      "azimutes",    "height",      "hauteur",     "altura",
    "hoehe",    "tilt",        "downtilt",    "inclinaison", "transmitter", "sector",
    "secteur",  "antenna",     "antenne",     "antena",      "easting",     "northing",
    "cellname", "coordinates", "longitudine", "site_id",     "gps"};

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

bool isSiteWord(std::string_view name)
{
    const std::vector<std::string> words = wordsOf(name);
    return std::any_of(words.begin(), words.end(), [](const std::string &word) {
        return std::find(SiteWords.begin(), SiteWords.end(), word) != SiteWords.end();
    });
}

} // namespace vlt::tables
