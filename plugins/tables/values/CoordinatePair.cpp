#include "plugins/tables/values/CoordinatePair.h"

#include "plugins/tables/cells/Cell.h"
#include "plugins/tables/cells/Numbers.h"
#include "plugins/tables/table/HeaderWords.h"
#include "plugins/tables/values/Angle.h"
#include "plugins/tables/values/NamedPair.h"

#include <algorithm>
#include <cmath>

namespace vlt::driver {

namespace {

using contract::TableTextId;

constexpr double MaxLongitude = 180;
constexpr double MaxLatitude = 90;
constexpr std::size_t None = std::string_view::npos;

CoordinatePair fault(TableTextId why)
{
    return {0, 0, false, why};
}

CoordinatePair checked(const Angle &x, const Angle &y)
{
    if (x.fault || y.fault)
        return fault(x.fault ? *x.fault : *y.fault);
    if (std::abs(x.degrees) > MaxLongitude || std::abs(y.degrees) > MaxLatitude)
        return fault("MESS_TAB_OUTSIDE_GLOBE");
    return {x.degrees, y.degrees, x.parts > 1 || y.parts > 1, std::nullopt};
}

bool isLetter(char c)
{
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

bool isAngle(std::string_view text, LetterO letterO)
{
    return !readAngle(text, Axis::Y, letterO).fault || !readAngle(text, Axis::X, letterO).fault;
}

/// A text with two coordinates, cut between them.
struct Halves
{
    std::string_view first;
    std::string_view second;
};

/// Cuts a text such as 48°51'24"N 2°21'3"E at the blank beside a letter.
std::optional<Halves> cutAtBlank(std::string_view text, LetterO letterO)
{
    constexpr std::size_t MaxSize = 100; // bytes; no coordinates are longer
    if (text.size() > MaxSize)
        return std::nullopt;
    for (std::size_t at = text.find(' '); at != None; at = text.find(' ', at + 1)) {
        const Halves halves = {trimmed(text.substr(0, at)), trimmed(text.substr(at))};
        const bool isAtLetter = !halves.first.empty() && !halves.second.empty() &&
                                (isLetter(halves.first.back()) || isLetter(halves.second[0]));
        const bool haveLetters = std::any_of(halves.first.begin(), halves.first.end(), isLetter) &&
                                 std::any_of(halves.second.begin(), halves.second.end(), isLetter);
        if (isAtLetter && haveLetters && isAngle(halves.first, letterO) &&
            isAngle(halves.second, letterO))
            return halves;
    }
    return std::nullopt;
}

/// Whether a text has more than digits: a decimal mark, a degree sign or a letter for a direction.
bool showsCoordinate(std::string_view text)
{
    return text.find_first_of(".,NSEWOnsewo\xC2") != None;
}

/// Cuts a text such as 46.2/6.1. A date or a fraction has no decimal marks.
std::optional<Halves> cutAtSlash(std::string_view text)
{
    const std::size_t cut = text.find('/');
    if (cut == None || text.find('/', cut + 1) != None)
        return std::nullopt;
    const Halves halves = {text.substr(0, cut), text.substr(cut + 1)};
    return showsCoordinate(halves.first) && showsCoordinate(halves.second) ? std::optional(halves)
                                                                           : std::nullopt;
}

std::optional<Halves> cutInTwo(std::string_view text, LetterO letterO)
{
    text = trimmed(text);
    if (text.size() > 2 && ((text.front() == '(' && text.back() == ')') ||
                            (text.front() == '[' && text.back() == ']')))
        text = text.substr(1, text.size() - 2);
    if (const auto halves = cutAtSlash(text))
        return halves;
    const char separator = text.find(';') != None ? ';' : ',';
    const std::size_t cut = text.find(separator);
    if (cut == 0)
        return std::nullopt;
    if (cut == None)
        return cutAtBlank(text, letterO);
    const Halves halves = {text.substr(0, cut), text.substr(cut + 1)};
    // "48,85" alone is a number with a decimal comma. A position has a point, a degree sign or a
    // letter as well.
    if (separator == ',' &&
        (halves.second.find(',') != None || text.find_first_of(".NSEWOnsewo\xC2") == None))
        return std::nullopt;
    return halves;
}

/// A number of degrees without a hemisphere; 0 for any other text.
double plainDegrees(std::string_view text)
{
    return std::abs(parseEitherNumber(trimmed(text)).value_or(0));
}

} // namespace

CoordinatePair readCoordinatePair(std::string_view text, PairOrder order, LetterO letterO)
{
    if (const auto named = namedPair(text))
        return checked(readAngle(named->x, Axis::X, letterO),
                       readAngle(named->y, Axis::Y, letterO));
    const auto halves = cutInTwo(text, letterO);
    if (!halves)
        return fault("MESS_TAB_NOT_A_POSITION");
    const Axis axis = order == PairOrder::LatitudeFirst ? Axis::Y : Axis::X;
    const Axis otherAxis = axis == Axis::X ? Axis::Y : Axis::X;
    const bool isTurned = readAngle(halves->first, axis, letterO).fault &&
                          !readAngle(halves->first, otherAxis, letterO).fault;
    const bool xFirst = (axis == Axis::X) != isTurned;
    return checked(readAngle(xFirst ? halves->first : halves->second, Axis::X, letterO),
                   readAngle(xFirst ? halves->second : halves->first, Axis::Y, letterO));
}

PairOrder findPairOrder(const std::vector<std::string> &texts, std::string_view columnName)
{
    // A mistake in a single row must not turn all others round.
    constexpr std::size_t MinShare = 20; // one in so many
    std::size_t latitudeFirst = 0;
    std::size_t longitudeFirst = 0;
    for (const std::string &text : texts) {
        const auto halves = cutInTwo(text, LetterO::Unknown);
        if (!halves || namedPair(text))
            continue;
        const double first = plainDegrees(halves->first);
        const double second = plainDegrees(halves->second);
        const auto isLongitude = [](double degrees) {
            return degrees > MaxLatitude && degrees <= MaxLongitude;
        };
        longitudeFirst += isLongitude(first) && second <= MaxLatitude ? 1 : 0;
        latitudeFirst += isLongitude(second) && first <= MaxLatitude ? 1 : 0;
    }
    if (longitudeFirst * MinShare >= texts.size() && longitudeFirst > latitudeFirst)
        return PairOrder::LongitudeFirst;
    if (latitudeFirst * MinShare >= texts.size() && latitudeFirst > longitudeFirst)
        return PairOrder::LatitudeFirst;
    const std::string name = lowerCase(columnName);
    const std::size_t latitude = name.find("lat");
    const std::size_t longitude = std::min(name.find("lon"), name.find("lng"));
    return latitude != None && longitude < latitude ? PairOrder::LongitudeFirst
                                                    : PairOrder::LatitudeFirst;
}

} // namespace vlt::driver
