#include "plugins/tables/links/EndColumns.h"

#include "plugins/tables/roles/ColumnFacts.h"
#include "plugins/tables/roles/NameMatch.h"

#include <algorithm>

namespace vlt::driver {

namespace {

using Words = std::vector<std::string>;

Fit fitOfKnownIdentifier(const EndWords &name)
{
    static const std::vector<Words> Accepted = {{"site"},         {"name"},     {"id"},
                                                {"nom"},          {"station"},  {"node"},
                                                {"call", "sign"}, {"callsign"}, {"end"}};
    // "End" or "Start" alone may also be a date
    if (name.words.empty())
        return name.isNumbered || (name.endWord == "start" || name.endWord == "end") ? 0 : 1;
    const bool antenna = name.words == Words{"antenna"} && name.endIndex == 1 && !name.isNumbered;
    const bool accepted = std::find(Accepted.begin(), Accepted.end(), name.words) != Accepted.end();
    return accepted || antenna ? 1 : 0;
}

/// Reads the names in the header instead of those of the fields, because the number that makes the
/// name of a field unique does not name an end.
Names readNames(const TableProfile &table, EndStyle style)
{
    Names names;
    names.reserve(table.fields.size());
    for (const Field &field : table.fields) {
        const auto inHeader = table.header.names.find(field.column);
        const bool isNamed = inHeader != table.header.names.end();
        names.push_back(readEndWords(isNamed ? inHeader->second : std::string(), style));
    }
    return names;
}

PointFields findEnd(const Names &names, LinkEndId end, const std::vector<Field> &fields,
                    const Vocabulary &vocabulary)
{
    FieldWords words(names.size());
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (names[i].end == end)
            words[i] = names[i].words;
    }
    return findPoint(words, fields, vocabulary);
}

bool areNumbered(const Names &names, int a, int b)
{
    return a >= 0 && b >= 0 && names[static_cast<std::size_t>(a)].isNumbered &&
           names[static_cast<std::size_t>(b)].isNumbered;
}

FoundEnds findPositions(const TableProfile &table, EndStyle style, const Vocabulary &vocabulary)
{
    FoundEnds ends;
    ends.names = readNames(table, style);
    ends.points = {findEnd(ends.names, LinkEndId::A, table.fields, vocabulary),
                   findEnd(ends.names, LinkEndId::B, table.fields, vocabulary)};
    ends.areNumbered = areNumbered(ends.names, ends.points[0].xField(), ends.points[1].xField());
    return ends;
}

/// Finds the ends in the style of the table.
template<typename FindInStyle>
FoundEnds findEnds(FindInStyle findInStyle)
{
    FoundEnds ends = findInStyle(EndStyle::Names);
    if (!ends.found()) {
        if (FoundEnds zero = findInStyle(EndStyle::Zero); zero.found())
            return zero;
    }
    if (!ends.found() || ends.areNumbered) {
        if (FoundEnds numbered = findInStyle(EndStyle::Numbers); numbered.found())
            return numbered;
    }
    return ends;
}

/// The column of an end whose values are sites; -1 if there is none.
///
/// @param cells  texts of the sampled cells, by field
int findNamedEnd(const Names &names, LinkEndId end, const SampledColumns &cells,
                 const Vocabulary &vocabulary, const SiteDirectory &sites)
{
    constexpr double MinShare = 0.3; ///< of sites that are found, in a column of another name
    int best = -1;
    double mostPoints = 0;
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (names[i].end != end)
            continue;
        std::size_t filled = 0;
        std::size_t found = 0;
        for (const std::string &cell : cells[i]) {
            filled += cell.empty() ? 0 : 1;
            found += !cell.empty() && sites.find(cell) ? 1 : 0;
        }
        const double share =
            filled > 0 ? static_cast<double>(found) / static_cast<double>(filled) : 0;
        const bool isNamed = fitOfIdentifier(names[i], vocabulary) > 0;
        const double points = share + (isNamed ? 1 : 0);
        if (found > 0 && (isNamed || share >= MinShare) && points > mostPoints) {
            best = static_cast<int>(i);
            mostPoints = points;
        }
    }
    return best;
}

} // namespace

int bestFit(const Names &names, LinkEndId end, const FitOf &fitOf)
{
    int best = -1;
    Fit bestFit = 0;
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (const Fit fit = names[i].end == end ? fitOf(names[i]) : 0; fit > bestFit) {
            best = static_cast<int>(i);
            bestFit = fit;
        }
    }
    return best;
}

Fit fitOfIdentifier(const EndWords &name, const Vocabulary &vocabulary)
{
    constexpr Fit FitOfKnown = 2;
    constexpr int MinStrength = 45; ///< a sentence has less
    if (fitOfKnownIdentifier(name) > 0)
        return FitOfKnown;
    std::string joined;
    for (const std::string &word : name.words)
        joined += word + ' ';
    const std::vector<NameMatch> matches =
        matchName(separatedWords(joined, vocabulary), vocabulary);
    return std::any_of(matches.begin(), matches.end(), [](const NameMatch &match) {
        return match.strength >= MinStrength &&
               (match.role == Role::SiteId || match.role == Role::SiteName);
    });
}

FoundEnds findPlacedEnds(const TableProfile &table, const Vocabulary &vocabulary)
{
    return findEnds([&](EndStyle style) { return findPositions(table, style, vocabulary); });
}

FoundEnds findNamedEnds(const TableProfile &table, const Vocabulary &vocabulary,
                        const SiteDirectory &sites)
{
    return findEnds([&](EndStyle style) {
        FoundEnds found;
        found.names = readNames(table, style);
        const auto end = [&](LinkEndId id) {
            return findNamedEnd(found.names, id, table.sampledColumns, vocabulary, sites);
        };
        found.identifiers = {end(LinkEndId::A), end(LinkEndId::B)};
        found.areNumbered = areNumbered(found.names, found.identifiers[0], found.identifiers[1]);
        return found;
    });
}

bool namesBothEnds(const Header &header)
{
    for (const EndStyle style : {EndStyle::Names, EndStyle::Zero}) {
        bool a = false;
        bool b = false;
        for (const auto &[column, name] : header.names) {
            const LinkEndId end = readEndWords(name, style).end;
            a = a || end == LinkEndId::A;
            b = b || end == LinkEndId::B;
        }
        if (a && b)
            return true;
    }
    return false;
}

} // namespace vlt::driver
