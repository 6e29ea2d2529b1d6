#include "plugins/tables/ogr/RecognisedMapping.h"

#include <algorithm>
#include <filesystem>

namespace vlt::driver {

namespace {

using contract::StatedColumns;

std::string nameOf(const TableProfile &table, int field)
{
    return field < 0 ? std::string() : table.fields[static_cast<std::size_t>(field)].name;
}

/// The parts of a coordinate as far as the last one.
StatedColumns columnsOf(const TableProfile &table, const CoordinateFields &fields)
{
    StatedColumns columns;
    for (const int field : {fields.value, fields.minutes, fields.seconds, fields.hemisphere})
        columns.push_back(nameOf(table, field));
    while (columns.size() > 1 && columns.back().empty())
        columns.pop_back();
    return columns;
}

void addPoint(contract::ColumnMapping &mapping, const TableProfile &table, const PointFields &point,
              const std::string &end)
{
    if (point.x.found())
        mapping.roles["x" + end] = columnsOf(table, point.x);
    if (point.y.found())
        mapping.roles["y" + end] = columnsOf(table, point.y);
    if (point.pair >= 0)
        mapping.roles["pair" + end] = {nameOf(table, point.pair)};
    if (point.utm && point.utm->zone >= 0)
        mapping.roles[UtmZoneRole + end] = {nameOf(table, point.utm->zone)};
}

bool isOfPosition(Role role)
{
    return role == Role::X || role == Role::Y || role == Role::Pair || role == Role::UtmZone;
}

/// Whether a column has the ids of sectors, but the names of sites are taken for them.
bool isReplaced(const ColumnRole &column, const SiteRoles &roles)
{
    return column.role == Role::SectorId &&
           std::any_of(roles.transmitters.begin(), roles.transmitters.end(),
                       [&roles](const TransmitterFields &of) {
                           return of.sectorId >= 0 && of.sectorId == roles.siteName;
                       });
}

/// The other roles of sites; those of transmitters in the order of their numbers.
void addRoles(contract::ColumnMapping &mapping, const TableProfile &table, const SiteRoles &roles)
{
    std::vector<int> numbers;
    for (const ColumnRole &column : roles.columns) {
        if (column.sector >= 0)
            numbers.push_back(column.sector);
    }
    std::sort(numbers.begin(), numbers.end());
    numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
    for (const ColumnRole &column : roles.columns) {
        if (isOfPosition(column.role) || isReplaced(column, roles))
            continue;
        StatedColumns &stated = mapping.roles[std::string(roleName(column.role))];
        if (column.sector < 0) {
            stated = {nameOf(table, column.field)};
            continue;
        }
        stated.resize(std::max<std::size_t>(numbers.size(), 2));
        const auto at = std::lower_bound(numbers.begin(), numbers.end(), column.sector);
        stated[static_cast<std::size_t>(at - numbers.begin())] = nameOf(table, column.field);
    }
}

/// A path relative to the folder of the table, if that is possible.
std::string relativeTo(const std::string &table, const std::string &path)
{
    const std::filesystem::path folder = std::filesystem::path(table).parent_path();
    const std::string relative = std::filesystem::path(path).lexically_relative(folder).string();
    return folder.empty() || relative.empty() ? path : relative;
}

} // namespace

contract::ColumnMapping recognisedMapping(const TableFile &file)
{
    const TableFacts &facts = file.facts();
    const TableOptions &options = file.options();
    contract::ColumnMapping mapping;
    mapping.kind = options.kind;
    if (facts.table.encoding.name.empty()) // a workbook
        mapping.sheet = facts.table.sheet;
    mapping.headerRows.emplace();
    for (const HeaderRow &row : facts.table.header.rows)
        mapping.headerRows->push_back(row.number);
    mapping.swapsAxes = options.swapsAxes;
    mapping.sourceSrs = options.mapping.mapping.sourceSrs;
    mapping.corrections = options.mapping.mapping.corrections;
    if (!options.second.empty())
        (options.kind == contract::TableKind::Sites ? mapping.sectors : mapping.sites) =
            relativeTo(file.path(), options.second);
    const auto addNamed = [&](PointFields point, const std::string &end) {
        if (options.swapsAxes) // as the names say
            point.swapAxes();
        addPoint(mapping, facts.table, point, end);
    };
    if (const SiteLayout *sites = std::get_if<SiteLayout>(&facts.layout)) {
        addNamed(sites->point, {});
        addRoles(mapping, facts.table, sites->roles);
        return mapping;
    }
    addNamed(facts.links().ends[0].point, "A");
    addNamed(facts.links().ends[1].point, "B");
    const std::string zone = UtmZoneRole;
    if (const auto ofB = mapping.roles.find(zone + 'B');
        ofB != mapping.roles.end() && ofB->second == mapping.roles[zone + 'A'])
        mapping.roles.erase(ofB); // a column is stated once
    for (const LinkColumnRole &column : facts.links().columns) {
        if (!isOfPosition(column.role))
            mapping.roles[column.name()].push_back(nameOf(facts.table, column.field));
    }
    return mapping;
}

} // namespace vlt::driver
