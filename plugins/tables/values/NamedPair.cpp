#include "plugins/tables/values/NamedPair.h"

#include "plugins/tables/cells/Cell.h"
#include "plugins/tables/table/HeaderWords.h"
#include "plugins/tables/values/Hemisphere.h"

#include <algorithm>
#include <array>
#include <string>

namespace vlt::driver {

namespace {

constexpr std::size_t None = std::string_view::npos;

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool isLetter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

/// The first two of the two to four numbers of a point; longitude first.
std::optional<PairTexts> firstTwo(std::string_view numbers, std::string_view separators)
{
    std::array<std::string_view, 4> texts;
    std::size_t count = 0;
    while (!(numbers = trimmed(numbers)).empty()) {
        if (count == texts.size())
            return std::nullopt;
        const std::size_t size = std::min(numbers.find_first_of(separators), numbers.size());
        texts[count++] = trimmed(numbers.substr(0, size));
        numbers.remove_prefix(std::min(size + 1, numbers.size()));
    }
    return count >= 2 ? std::optional(PairTexts{texts[0], texts[1]}) : std::nullopt;
}

/// The numbers of a text such as POINT(2.27 48.85) or SRID=4326;POINT Z (2.27 48.85 35).
std::optional<PairTexts> wellKnownPoint(std::string_view text, const std::string &lower)
{
    const std::size_t point = lower.starts_with("srid=") ? lower.find(';') + 1 : 0;
    const std::size_t open = lower.find('(');
    const std::size_t close = lower.rfind(')');
    if (!std::string_view(lower).substr(point).starts_with("point") || open == None ||
        close == None || close < open)
        return std::nullopt;
    return firstTwo(text.substr(open + 1, close - open - 1), " \t");
}

/// The numbers of a text such as {"type": "Point", "coordinates": [2.27, 48.85]}.
std::optional<PairTexts> geoJsonPoint(std::string_view text, const std::string &lower)
{
    const std::size_t name = lower.find("coordinates");
    if (!lower.starts_with('{') || name == None)
        return std::nullopt;
    const std::size_t open = lower.find('[', name);
    const std::size_t close = lower.find(']', name);
    if (open == None || close == None || close < open)
        return std::nullopt;
    return firstTwo(text.substr(open + 1, close - open - 1), ",");
}

/// The name of a coordinate in a text; the value lies between `end` and the next name.
struct Name
{
    std::optional<Axis> axis; ///< nothing without a name
    std::size_t begin = None;
    std::size_t end = None;
};

std::optional<Axis> axisOf(std::string_view word, std::string_view after)
{
    if (word.starts_with("lat"))
        return Axis::Y;
    if (word.starts_with("lon") || word == "lng")
        return Axis::X;
    const std::size_t sign = after.find_first_not_of(" '\"");
    const bool isNamed = sign != None && (after[sign] == ':' || after[sign] == '=');
    return isNamed && word == "x"   ? std::optional(Axis::X)
           : isNamed && word == "y" ? std::optional(Axis::Y)
                                    : std::nullopt;
}

Name nextName(std::string_view lower, std::size_t at)
{
    while (at < lower.size()) {
        const std::size_t begin = at;
        while (at < lower.size() && isLetter(lower[at]))
            ++at;
        if (const auto axis = axisOf(lower.substr(begin, at - begin), lower.substr(at)))
            return {axis, begin, at};
        at += at == begin ? 1 : 0;
    }
    return {};
}

/// The value at the start of a text, which ends at a separator. A comma between digits is a decimal
/// mark.
std::string_view valueOf(std::string_view text)
{
    text.remove_prefix(std::min(text.find_first_not_of(" \t'\":=("), text.size()));
    for (std::size_t at = 0; at < text.size(); ++at) {
        const bool isDecimalMark = text[at] == ',' && at > 0 && at + 1 < text.size() &&
                                   isDigit(text[at - 1]) && isDigit(text[at + 1]);
        if (!isDecimalMark && std::string_view(",;|}])\n").find(text[at]) != None) {
            text = text.substr(0, at);
            break;
        }
    }
    while (!text.empty() && std::string_view(" \t'\"{[(").find(text.back()) != None)
        text.remove_suffix(1);
    return text;
}

/// The coordinates behind their names: longitude, lon, lng or x, latitude, lat or y.
std::optional<PairTexts> byNames(std::string_view text, const std::string &lower)
{
    PairTexts pair;
    for (Name name = nextName(lower, 0); name.axis;) {
        const Name next = nextName(lower, name.end);
        std::string_view &value = name.axis == Axis::X ? pair.x : pair.y;
        const std::size_t end = std::min(next.begin, text.size());
        if (value.empty())
            value = valueOf(text.substr(name.end, end - name.end));
        name = next;
    }
    return pair.x.empty() || pair.y.empty() ? std::nullopt : std::optional(pair);
}

} // namespace

std::optional<PairTexts> namedPair(std::string_view text)
{
    if (text.find_first_of("aotTxX") == None) // in "lat", "lon", "point" or "x"
        return std::nullopt;
    const std::string lower = lowerCase(text);
    if (const auto point = wellKnownPoint(text, lower))
        return point;
    if (const auto point = geoJsonPoint(text, lower))
        return point;
    return byNames(text, lower);
}

} // namespace vlt::driver
