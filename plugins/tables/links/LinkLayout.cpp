#include "plugins/tables/links/LinkLayout.h"

#include "plugins/tables/bytes/Refusal.h"
#include "plugins/tables/links/ContrastedEnds.h"
#include "plugins/tables/links/LengthUnit.h"
#include "plugins/tables/sites/SiteLayout.h"
#include "plugins/tables/table/HeaderWords.h"

#include <algorithm>

namespace vlt::driver {

namespace {

/// The field that names an end best; -1 if none does.
int identifierOf(const Names &names, LinkEndId end, const Vocabulary &vocabulary)
{
    int best = -1;
    int most = 0;
    for (std::size_t i = 0; i < names.size(); ++i) {
        const int strength = names[i].end == end ? strengthOfIdentifier(names[i], vocabulary) : 0;
        if (strength > most) {
            best = static_cast<int>(i);
            most = strength;
        }
    }
    return best;
}

/// The names of the columns of a position.
std::string namesOf(const PointFields &point, const std::vector<Field> &fields)
{
    const auto name = [&fields](int field) { return fields[static_cast<std::size_t>(field)].name; };
    return point.pair >= 0 ? name(point.pair) : name(point.x.value) + ", " + name(point.y.value);
}

/// Whether columns of an end are named as coordinates of x and of y.
std::pair<bool, bool> coordinatesNamed(const Names &names, LinkEndId end,
                                       const Vocabulary &vocabulary)
{
    bool x = false;
    bool y = false;
    for (const LinkColumnName &name : names) {
        if (name.end != end)
            continue;
        for (const NameMatch &match : matchName(name.words, vocabulary)) {
            using enum Role;
            x = x || match.role == Longitude || match.role == Easting || match.role == X;
            y = y || match.role == Latitude || match.role == Northing || match.role == Y;
        }
    }
    return {x, y};
}

bool isCoordinate(Role role)
{
    return role == Role::X || role == Role::Y || role == Role::Pair;
}

[[noreturn]] void refuse(const FoundEnds &ends, const std::vector<Field> &fields,
                         const Vocabulary &vocabulary, const StatedRoles &stated)
{
    for (const auto &[end, letter] : {std::pair(LinkEndId::A, "A"), std::pair(LinkEndId::B, "B")}) {
        const auto [hasX, hasY] = coordinatesNamed(ends.names, end, vocabulary);
        if (hasX != hasY)
            throw RefusedFile(Refusal::NoLinks,
                              hasX ? contract::TableTextId("MESS_TAB_NO_END_Y")
                                   : contract::TableTextId("MESS_TAB_NO_END_X"),
                              {letter});
    }
    const bool hasA = ends.points[0].found();
    if (hasA || ends.points[1].found())
        throw RefusedFile(Refusal::NoLinks, "MESS_TAB_ONE_END", {hasA ? "B" : "A"});
    const std::array<int, 2> ofUser = statedIdentifiers(stated);
    const auto name = [&](std::size_t at) {
        const LinkEndId end = at == 0 ? LinkEndId::A : LinkEndId::B;
        const int field = ofUser[at] >= 0 ? ofUser[at] : identifierOf(ends.names, end, vocabulary);
        return field < 0 ? std::string() : fields[static_cast<std::size_t>(field)].name;
    };
    if (const std::string a = name(0), b = name(1); !a.empty() && !b.empty())
        throw RefusedFile(Refusal::NoLinks, "MESS_TAB_ENDS_ONLY_NAMED", {a, b});
    FieldWords words;
    for (const Field &field : fields)
        words.emplace_back(separatedWords(field.name, vocabulary));
    if (const PointFields point = findPoint(words, fields, vocabulary); point.found())
        throw RefusedFile(Refusal::NoLinks, "MESS_TAB_SITES_NOT_LINKS", {namesOf(point, fields)});
    if (const auto unread = findUnreadGrid(fields))
        throw RefusedFile(Refusal::NoLinks, "MESS_TAB_GRID", {unread->column, unread->grid});
    throw RefusedFile(Refusal::NoLinks, "MESS_TAB_NO_ENDS");
}

std::string findFormat(const TableProfile &table, bool numbered)
{
    std::vector<std::string> texts = table.header.titles;
    texts.push_back(table.sheet);
    for (const std::string &text : texts) {
        const std::vector<std::string> words = wordsOf(text);
        for (const char *tool : {"asset", "atoll"}) {
            if (std::find(words.begin(), words.end(), tool) != words.end())
                return tool;
        }
    }
    return numbered ? "generic (numbered ends)" : "generic (ends side by side)";
}

/// The common unit of both ends. Metres have priority because a small easting, near the false
/// origin, can also be read as degrees.
CoordinateUnit commonUnit(CoordinateUnit a, CoordinateUnit b)
{
    for (const CoordinateUnit unit : {CoordinateUnit::Meters, CoordinateUnit::Dms}) {
        if (a == unit || b == unit)
            return unit;
    }
    return CoordinateUnit::Degrees;
}

/// The layout with these ends, without the unit and system of the positions.
LinkLayout layoutOf(const TableProfile &table, const FoundEnds &ends, const Vocabulary &vocabulary,
                    const StatedRoles &stated)
{
    LinkLayout layout;
    static_cast<LinkRoles &>(layout) = findLinkRoles(table, ends, vocabulary, stated);
    layout.format = findFormat(table, ends.areNumbered);
    return layout;
}

/// The ends with their positions, also those that only a contrast of two positions shows.
FoundEnds placedEnds(const TableProfile &table, const Vocabulary &vocabulary,
                     const StatedRoles &stated)
{
    FoundEnds ends = findPlacedEnds(table, vocabulary);
    if (!ends.found()) {
        if (FoundEnds contrasted = findContrastedEnds(table, vocabulary); contrasted.found())
            ends = std::move(contrasted);
    }
    stateEnds(ends, table.fields, vocabulary, stated);
    ends.identifiers = {-1, -1}; // the positions do not come from a table of sites
    return ends;
}

} // namespace

LinkLayout recogniseLinkLayout(const TableProfile &table, const Vocabulary &vocabulary,
                               const StatedRoles &stated)
{
    const FoundEnds ends = placedEnds(table, vocabulary, stated);
    if (!ends.found())
        refuse(ends, table.fields, vocabulary, stated);
    LinkLayout layout = layoutOf(table, ends, vocabulary, stated);
    layout.unit = commonUnit(findUnit(ends.points[0], table.fields, vocabulary),
                             findUnit(ends.points[1], table.fields, vocabulary));
    findSystem(table, ends.points[0], vocabulary, layout);
    return layout;
}

void findLengthUnit(const TableProfile &table, LinkLayout &layout)
{
    const std::optional<LengthUnit> unit = layout.length.found() && !layout.length.unit
                                               ? lengthUnitByPositions(table, layout)
                                               : std::nullopt;
    if (!unit)
        return;
    layout.length.unit = unit->metres;
    for (LinkColumnRole &column : layout.columns) {
        if (column.role == Role::Length)
            column.evidence =
                contract::formatted("MESS_TAB_EVIDENCE_UNIT", {column.evidence, unit->name});
    }
}

LinkLayout incompleteLinkLayout(const TableProfile &table, const Vocabulary &vocabulary,
                                const StatedRoles &stated)
{
    LinkLayout layout = layoutOf(table, placedEnds(table, vocabulary, stated), vocabulary, stated);
    // A position of which only a part is stated is not found.
    std::erase_if(layout.columns, [&stated](const LinkColumnRole &column) {
        return isCoordinate(column.role) && stated.fields.contains(column.field);
    });
    for (const auto &[name, fields] : stated.roles) {
        const Role role = roleOfName(name.substr(0, name.size() - 1));
        for (const int field : fields) {
            if (field >= 0 && isCoordinate(role))
                layout.columns.push_back({field, role,
                                          name.ends_with('A') ? LinkEndId::A : LinkEndId::B,
                                          stated.evidence});
        }
    }
    return layout;
}

std::optional<LinkLayout> recogniseNamedLinks(const TableProfile &table,
                                              const Vocabulary &vocabulary,
                                              const SiteDirectory &sites,
                                              const TableDeclaration &ofSites,
                                              const StatedRoles &stated)
{
    FoundEnds ends = findNamedEnds(table, vocabulary, sites);
    stateEnds(ends, table.fields, vocabulary, stated);
    if (!ends.found())
        return std::nullopt;
    LinkLayout layout = layoutOf(table, ends, vocabulary, stated);
    layout.unit = ofSites.unit;
    layout.epsg = ofSites.epsg;
    return layout;
}

bool holdsLinks(const TableProfile &table, const Vocabulary &vocabulary, const StatedRoles &stated)
{
    FoundEnds ends;
    if (namesBothEnds(table.header, vocabulary) || stated.find("xA") || stated.find("pairA"))
        ends = findPlacedEnds(table, vocabulary);
    if (!ends.names.empty())
        stateEnds(ends, table.fields, vocabulary, stated);
    return ends.points[0].found() && ends.points[1].found();
}

int linkSuitability(const TableProfile &start, const Vocabulary &vocabulary)
{
    constexpr uint64_t MinRows = 3;
    if (!namesBothEnds(start.header, vocabulary))
        return 0;
    return (findPlacedEnds(start, vocabulary).found() ? 4 : 2) +
           (start.rowCount >= MinRows ? 1 : 0);
}

} // namespace vlt::driver
