#include "plugins/tables/sites/UtmColumns.h"

#include "plugins/tables/cells/GroupedNumber.h"
#include "plugins/tables/cells/Numbers.h"
#include "plugins/tables/roles/NameMatch.h"
#include "plugins/tables/sites/CoordinateColumns.h"
#include "plugins/tables/sites/PositionReader.h"

#include <algorithm>
#include <set>

namespace vlt::driver {

namespace {

using Words = std::vector<std::string>;

std::vector<double> numbersOf(const Field &field)
{
    std::vector<double> numbers;
    for (const std::string &text : field.samples) {
        std::optional<double> number = parseEitherNumber(trimmed(text));
        if (!number)
            number = parseGroupedNumber(trimmed(text));
        if (number)
            numbers.push_back(*number);
    }
    return numbers;
}

/// Whether most samples are coordinates of UTM, and none is missing.
bool lieInUtm(const std::vector<double> &eastings, const std::vector<double> &northings)
{
    const std::size_t count = std::min(eastings.size(), northings.size());
    std::size_t good = 0;
    for (std::size_t i = 0; i < count; ++i)
        good += isInUtmRange(eastings[i], northings[i]) ? 1 : 0;
    return good > 0 && good * 10 >= count * 8;
}

/// The zones in a column; empty if it has other values as well.
std::vector<UtmZone> zonesOf(const Field &field)
{
    std::vector<UtmZone> zones;
    std::size_t others = 0;
    for (const std::string &text : field.samples) {
        if (const auto zone = readUtmZone(text))
            zones.push_back(*zone);
        else
            ++others;
    }
    return others * 10 > field.samples.size() ? std::vector<UtmZone>() : zones;
}

bool namesUtm(const std::optional<Words> &words)
{
    return words && std::find(words->begin(), words->end(), "utm") != words->end();
}

/// Whether numbers without letters are zones, and not those of an operator's regions.
bool areZones(const std::vector<UtmZone> &zones, bool isNamedUtm)
{
    constexpr int MinNumber = 10;
    constexpr std::size_t MaxNumbers = 3;
    std::set<int> numbers;
    bool havePlainNumber = false;
    for (const UtmZone &zone : zones) {
        numbers.insert(zone.number);
        havePlainNumber = havePlainNumber || zone.letter == 0;
    }
    return !havePlainNumber || isNamedUtm ||
           (*numbers.begin() >= MinNumber && numbers.size() <= MaxNumbers);
}

/// The columns with these zones, all of which may be the same.
UtmColumns columnsWith(int field, const std::vector<UtmZone> &zones,
                       const std::vector<double> &northings)
{
    UtmColumns columns = {field, UtmNotation(zones, northings), std::nullopt};
    const UtmGrid first = columns.notation.gridOf(zones.front());
    if (std::all_of(zones.begin(), zones.end(),
                    [&](const UtmZone &zone) { return columns.notation.gridOf(zone) == first; }))
        columns.only = first;
    return columns;
}

std::optional<UtmColumns> inPairs(const Field &field)
{
    std::vector<UtmZone> zones;
    std::vector<double> northings;
    for (const std::string &text : field.samples) {
        if (const auto position = readUtmPosition(text)) {
            zones.push_back(position->zone);
            northings.push_back(position->northingM);
        }
    }
    return zones.empty() ? std::nullopt : std::optional(columnsWith(-1, zones, northings));
}

} // namespace

std::string UtmColumns::epsg() const
{
    constexpr int North = 32600; // of WGS 84
    constexpr int South = 32700;
    return only ? std::to_string((only->isSouth ? South : North) + only->number) : "4326";
}

std::optional<UtmColumns> findUtmColumns(const PointFields &point,
                                         const std::vector<std::optional<Words>> &words,
                                         const std::vector<Field> &fields,
                                         const Vocabulary &vocabulary, const StatedRoles &stated)
{
    const auto field = [&fields](int of) -> const Field & {
        return fields[static_cast<std::size_t>(of)];
    };
    if (point.pair >= 0)
        return holdUtmPositions(field(point.pair).samples) ? inPairs(field(point.pair))
                                                           : std::nullopt;
    const std::vector<int> *isStated = stated.find(UtmZoneRole);
    if (!point.found() || point.x.inParts() || (isStated && isStated->empty()))
        return std::nullopt;
    const std::vector<double> northings = numbersOf(field(point.y.value));
    if (!lieInUtm(numbersOf(field(point.x.value)), northings))
        return std::nullopt;
    const bool isNamed = namesUtm(words[static_cast<std::size_t>(point.x.value)]);
    for (std::size_t i = 0; i < fields.size(); ++i) {
        const int at = static_cast<int>(i);
        if (isStated ? at != isStated->front()
                     : !words[i] || point.uses(at) || stated.fields.contains(at) ||
                           !namesUtmZone(*words[i], vocabulary))
            continue;
        const std::vector<UtmZone> zones = zonesOf(fields[i]);
        if (!zones.empty() && (isStated || areZones(zones, isNamed || namesUtm(words[i]))))
            return columnsWith(at, zones, northings);
    }
    return std::nullopt;
}

bool namesUtmZone(const Words &words, const Vocabulary &vocabulary)
{
    const std::vector<NameMatch> matches = matchName(words, vocabulary);
    return std::any_of(matches.begin(), matches.end(),
                       [](const NameMatch &match) { return match.role == Role::UtmZone; });
}

bool holdUtmPositions(const std::vector<std::string> &texts)
{
    const auto good = std::count_if(texts.begin(), texts.end(), [](const std::string &text) {
        return readUtmPosition(text).has_value();
    });
    return good > 0 && static_cast<std::size_t>(good) * 10 >= texts.size() * 8;
}

std::optional<UtmGrid> gridOfRow(const PointFields &point, const std::vector<const Cell *> &cells)
{
    if (point.pair >= 0) {
        const auto position = readUtmPosition(fieldText(cells, point.pair));
        return position ? std::optional(point.utm->notation.gridOf(position->zone)) : std::nullopt;
    }
    const auto zone = readUtmZone(fieldText(cells, point.utm->zone));
    return zone ? std::optional(point.utm->notation.gridOf(*zone)) : std::nullopt;
}

} // namespace vlt::driver
