#include "plugins/tables/links/EndColumns.h"

#include "plugins/tables/roles/ColumnFacts.h"

#include <algorithm>

namespace vlt::driver {

namespace {

constexpr int MinStrength = 45; ///< of a name; a sentence has less

/// The words of each column name. Names in the header are read instead of those of the fields,
/// because the number that makes the name of a field unique does not name an end.
std::vector<std::vector<std::string>> wordsOfColumns(const TableProfile &table,
                                                     const Vocabulary &vocabulary)
{
    std::vector<std::vector<std::string>> words;
    words.reserve(table.fields.size());
    for (std::size_t i = 0; i < table.fields.size(); ++i)
        words.push_back(linkWords(table.nameWithUnit(static_cast<int>(i)), vocabulary));
    return words;
}

PointFields findEnd(const Names &names, LinkEndId end, const std::vector<Field> &fields,
                    const Vocabulary &vocabulary, const StatedRoles &stated = {})
{
    FieldWords words(names.size());
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (names[i].end == end ||
            (names[i].end == LinkEndId::None && namesUtmZone(names[i].words, vocabulary)))
            words[i] = names[i].words;
    }
    return findPoint(words, fields, vocabulary, stated);
}

bool areNumbered(const Names &names, int a, int b)
{
    return a >= 0 && b >= 0 && names[static_cast<std::size_t>(a)].isNumbered &&
           names[static_cast<std::size_t>(b)].isNumbered;
}

/// Finds the ends in the style of the table.
///
/// @param complete  finds the columns of both ends by the names
template<typename Complete>
FoundEnds findEnds(const TableProfile &table, const Vocabulary &vocabulary, Complete complete)
{
    const auto words = wordsOfColumns(table, vocabulary);
    const auto findInStyle = [&](EndStyle style) {
        FoundEnds ends;
        for (const auto &ofColumn : words)
            ends.names.push_back(readColumnName(ofColumn, style, vocabulary));
        complete(ends);
        return ends;
    };
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
        const bool isNamed = strengthOfIdentifier(names[i], vocabulary) > 0;
        const double points = share + (isNamed ? 1 : 0);
        if (found > 0 && (isNamed || share >= MinShare) && points > mostPoints) {
            best = static_cast<int>(i);
            mostPoints = points;
        }
    }
    return best;
}

} // namespace

std::vector<NameMatch> matchEndColumn(const LinkColumnName &name, const Vocabulary &vocabulary)
{
    constexpr int StrengthOfEndAlone = 90; ///< "From", "TX"
    constexpr int StrengthOfAntenna = 50;  ///< "Antenna TX"
    const auto siteName = [](int strength) {
        NameMatch match;
        match.role = Role::SiteName;
        match.strength = strength;
        return std::vector{match};
    };
    if (name.words.empty())
        return name.isNumbered ? std::vector<NameMatch>() : siteName(StrengthOfEndAlone);
    std::vector<NameMatch> matches = matchName(name.words, vocabulary);
    const auto ofRows =
        matches.empty() ? matchKindOfRows(name.words, vocabulary) : std::optional<NameMatch>();
    if (ofRows && ofRows->role == Role::SiteName)
        return {*ofRows};
    const bool endsWithName = name.endIndex == 1 && name.words.size() == 1 && !name.isNumbered;
    return ofRows && endsWithName ? siteName(StrengthOfAntenna) : matches;
}

int strengthOfIdentifier(const LinkColumnName &name, const Vocabulary &vocabulary)
{
    int strength = 0;
    for (const NameMatch &match : matchEndColumn(name, vocabulary)) {
        if ((match.role == Role::SiteId || match.role == Role::SiteName) &&
            match.strength >= MinStrength)
            strength = std::max(strength, match.strength);
    }
    return strength;
}

FoundEnds findPlacedEnds(const TableProfile &table, const Vocabulary &vocabulary)
{
    return findEnds(table, vocabulary, [&](FoundEnds &ends) {
        ends.points = {findEnd(ends.names, LinkEndId::A, table.fields, vocabulary),
                       findEnd(ends.names, LinkEndId::B, table.fields, vocabulary)};
        ends.areNumbered =
            areNumbered(ends.names, ends.points[0].xField(), ends.points[1].xField());
    });
}

FoundEnds findNamedEnds(const TableProfile &table, const Vocabulary &vocabulary,
                        const SiteDirectory &sites)
{
    return findEnds(table, vocabulary, [&](FoundEnds &ends) {
        const auto end = [&](LinkEndId id) {
            return findNamedEnd(ends.names, id, table.sampledColumns, vocabulary, sites);
        };
        ends.identifiers = {end(LinkEndId::A), end(LinkEndId::B)};
        ends.areNumbered = areNumbered(ends.names, ends.identifiers[0], ends.identifiers[1]);
    });
}

void stateEnds(FoundEnds &ends, const std::vector<Field> &fields, const Vocabulary &vocabulary,
               const StatedRoles &stated)
{
    for (std::size_t at = 0; at < ends.points.size(); ++at) {
        const std::string letter = at == 0 ? "A" : "B";
        StatedRoles ofEnd = {{}, stated.fields, {}};
        for (const std::string role : {"x", "y", "pair", UtmZoneRole}) {
            const std::vector<int> *found = stated.find(role + letter);
            if (!found && role == UtmZoneRole) // a column may hold the zones of both ends
                found = stated.find(role + (at == 0 ? "B" : "A"));
            if (found)
                ofEnd.roles.emplace(role, *found);
        }
        PointFields &point = ends.points[at];
        const bool usesOther = std::any_of(stated.fields.begin(), stated.fields.end(),
                                           [&point](int field) { return point.uses(field); });
        if (!ofEnd.roles.empty() || usesOther)
            point = findEnd(ends.names, at == 0 ? LinkEndId::A : LinkEndId::B, fields, vocabulary,
                            ofEnd);
        if (const int identifier = statedIdentifiers(stated)[at]; identifier >= 0)
            ends.identifiers[at] = identifier;
    }
}

std::array<int, 2> statedIdentifiers(const StatedRoles &stated)
{
    std::array<int, 2> identifiers = {-1, -1};
    for (std::size_t at = 0; at < identifiers.size(); ++at) {
        for (const std::string role : {"siteName", "siteId"}) {
            const std::vector<int> *found = stated.find(role + (at == 0 ? "A" : "B"));
            if (found && !found->empty())
                identifiers[at] = found->front();
        }
    }
    return identifiers;
}

bool namesBothEnds(const Header &header, const Vocabulary &vocabulary)
{
    for (const EndStyle style : {EndStyle::Names, EndStyle::Zero}) {
        bool a = false;
        bool b = false;
        for (const auto &[column, name] : header.names) {
            const LinkEndId end =
                readColumnName(linkWords(name, vocabulary), style, vocabulary).end;
            a = a || end == LinkEndId::A;
            b = b || end == LinkEndId::B;
        }
        if (a && b)
            return true;
    }
    return false;
}

} // namespace vlt::driver
