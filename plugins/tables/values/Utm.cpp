#include "plugins/tables/values/Utm.h"

#include "plugins/tables/cells/Cell.h"
#include "plugins/tables/cells/Numbers.h"
#include "plugins/tables/roles/NameWords.h"
#include "plugins/tables/roles/Vocabulary.h"

#include <algorithm>
#include <charconv>
#include <string>

namespace vlt::driver {

namespace {

constexpr int MaxZone = 60;
constexpr std::size_t MaxSize = 80; ///< bytes; longer texts are no positions

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool isLetter(char c)
{
    return (c | 0x20) >= 'a' && (c | 0x20) <= 'z';
}

char upperCase(char c)
{
    return static_cast<char>(c & ~0x20);
}

/// Whether words before a number say that it is a zone: "UTM", "zone", "Huso UTM".
bool namesZone(std::string_view text)
{
    std::string joined;
    for (const std::string &word : nameWords(text))
        joined += word;
    const WordMeaning *meaning = installedVocabulary().words.find(joined);
    return joined.empty() || (meaning && meaning->roles[static_cast<std::size_t>(Role::UtmZone)]);
}

/// The zone with what stands behind its number.
std::optional<UtmZone> withLetter(int number, std::string_view rest)
{
    UtmZone zone = {number, 0, false};
    if (rest.empty())
        return zone;
    if (rest.size() == 1) {
        zone.letter = upperCase(rest[0]);
        const bool isBand = isLetter(rest[0]) && zone.letter >= 'C' && zone.letter <= 'X' &&
                            zone.letter != 'I' && zone.letter != 'O';
        return isBand ? std::optional(zone) : std::nullopt;
    }
    const auto word = installedVocabulary().words.hemispheres().find(rest);
    if (!word || (word->direction != Direction::North && word->direction != Direction::South))
        return std::nullopt;
    zone.letter = word->direction == Direction::North ? 'N' : 'S';
    zone.isWord = true;
    return zone;
}

std::vector<std::string_view> tokensOf(std::string_view text)
{
    std::vector<std::string_view> tokens;
    while (!text.empty()) {
        std::size_t end = 0;
        // a comma between digits is a decimal mark
        while (end < text.size() && text[end] != ' ' && text[end] != ';' && text[end] != '\t' &&
               !(text[end] == ',' && (end + 1 == text.size() || !isDigit(text[end + 1]))))
            ++end;
        if (end > 0)
            tokens.push_back(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return tokens;
}

/// The number of a coordinate such as 585628, 585628.5mE or E585628.
std::optional<double> coordinateIn(std::string_view token)
{
    constexpr std::size_t MaxUnitSize = 2;
    constexpr std::string_view Letters = "mEN";
    const std::size_t first = std::min(token.find_first_of("0123456789"), token.size());
    const std::size_t last = token.find_last_of("0123456789");
    if (first > 1 || last == std::string_view::npos || token.size() - last - 1 > MaxUnitSize)
        return std::nullopt;
    const std::string_view before = token.substr(0, first);
    const std::string_view behind = token.substr(last + 1);
    if (before.find_first_not_of("EN") != std::string_view::npos ||
        behind.find_first_not_of(Letters) != std::string_view::npos)
        return std::nullopt;
    return parseEitherNumber(token.substr(first, last + 1 - first));
}

/// A position of two coordinates, and of the tokens of a zone.
std::optional<UtmPosition> positionOf(const std::string &zoneText, std::string_view easting,
                                      std::string_view northing)
{
    const std::optional<UtmZone> zone = readUtmZone(zoneText);
    const std::optional<double> x = coordinateIn(easting);
    const std::optional<double> y = coordinateIn(northing);
    if (!zone || !x || !y || !isInUtmRange(*x, *y))
        return std::nullopt;
    return UtmPosition{*zone, *x, *y};
}

} // namespace

std::optional<UtmZone> readUtmZone(std::string_view text)
{
    constexpr std::size_t MaxDigits = 2;
    text = trimmed(text);
    const std::size_t first = text.find_first_of("0123456789");
    if (first == std::string_view::npos || text.size() > MaxSize)
        return std::nullopt;
    std::size_t end = first;
    while (end < text.size() && isDigit(text[end]))
        ++end;
    int number = 0;
    std::from_chars(text.data() + first, text.data() + end, number);
    if (end - first > MaxDigits || number < 1 || number > MaxZone ||
        (first > 0 && !namesZone(text.substr(0, first))))
        return std::nullopt;
    return withLetter(number, trimmed(text.substr(end)));
}

std::optional<UtmPosition> readUtmPosition(std::string_view text)
{
    text = trimmed(text);
    constexpr std::size_t MinTokens = 3;
    constexpr std::size_t MaxTokens = 6;
    if (text.size() > MaxSize || text.find_first_of("0123456789") == std::string_view::npos)
        return std::nullopt;
    const std::vector<std::string_view> tokens = tokensOf(text);
    const std::size_t count = tokens.size();
    if (count < MinTokens || count > MaxTokens)
        return std::nullopt;
    const auto joined = [&tokens](std::size_t first, std::size_t end) {
        std::string zone;
        for (std::size_t at = first; at < end; ++at)
            zone += std::string(tokens[at]) + ' ';
        return zone;
    };
    if (const auto first = positionOf(joined(0, count - 2), tokens[count - 2], tokens[count - 1]))
        return first;
    return positionOf(joined(2, count), tokens[0], tokens[1]);
}

UtmNotation::UtmNotation(const std::vector<UtmZone> &zones, const std::vector<double> &northingsM)
{
    // northings of the band S, and those beyond the northernmost town
    constexpr double MinNorthingOfBandS = 3'530'000;
    constexpr double MaxNorthingOfBandS = 4'440'000;
    constexpr double MaxInhabitedNorthingM = 9'000'000;
    const auto any = [&zones](auto condition) {
        return std::any_of(zones.begin(), zones.end(), condition);
    };
    const bool hasNorth = any([](const UtmZone &zone) { return zone.letter == 'N'; });
    const bool hasWord = any([](const UtmZone &zone) { return zone.isWord; });
    const bool hasBand = any([](const UtmZone &zone) {
        return zone.letter != 0 && zone.letter != 'N' && zone.letter != 'S';
    });
    const auto inBand = std::count_if(northingsM.begin(), northingsM.end(), [](double northing) {
        return northing >= MinNorthingOfBandS && northing <= MaxNorthingOfBandS;
    });
    const bool liesInBand = static_cast<std::size_t>(inBand) * 2 > northingsM.size();
    m_isSSouth = !hasBand && (hasNorth || hasWord || !liesInBand);
    m_isHemisphereAssumed = any([](const UtmZone &zone) { return zone.letter == 0; });
    m_isAssumedSouth = std::any_of(northingsM.begin(), northingsM.end(), [](double northing) {
        return northing > MaxInhabitedNorthingM;
    });
}

UtmGrid UtmNotation::gridOf(const UtmZone &zone) const
{
    const bool isSouth = zone.letter == 0     ? m_isAssumedSouth
                         : zone.letter == 'S' ? m_isSSouth
                                              : zone.letter < 'N';
    return {zone.number, isSouth};
}

bool isInUtmRange(double eastingM, double northingM)
{
    constexpr double MinEastingM = 100'000;
    constexpr double MaxEastingM = 900'000;
    constexpr double MaxNorthingM = 10'000'000;
    return eastingM >= MinEastingM && eastingM <= MaxEastingM && northingM >= 0 &&
           northingM <= MaxNorthingM;
}

} // namespace vlt::driver
