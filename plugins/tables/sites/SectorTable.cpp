#include "plugins/tables/sites/SectorTable.h"

#include "plugins/tables/roles/NameWords.h"
#include "plugins/tables/sites/JoinKey.h"
#include "plugins/tables/sites/PositionReader.h"
#include "plugins/tables/sites/SiteLayout.h"

#include <algorithm>
#include <set>

namespace vlt::driver {

namespace {

constexpr std::size_t MaxKeyColumns = 6; ///< that are compared, of the table of sites
constexpr double MinShare = 0.3;         ///< of ids that are found
constexpr double PointsOfShare = 100;
constexpr double PointsOfRole = 50;
constexpr double PointsOfSameName = 40;
constexpr double PointsOfId = 20;

Role roleOf(const SiteRoles &roles, int field)
{
    const auto found =
        std::find_if(roles.columns.begin(), roles.columns.end(),
                     [field](const ColumnRole &column) { return column.field == field; });
    return found == roles.columns.end() ? Role::None : found->role;
}

bool namesSite(Role role)
{
    return role == Role::SiteId || role == Role::SiteName;
}

std::vector<std::string> keysOf(const std::vector<std::string> &cells)
{
    std::vector<std::string> keys;
    for (const std::string &cell : cells) {
        if (std::string key = joinKey(cell); !key.empty())
            keys.push_back(std::move(key));
    }
    return keys;
}

} // namespace

int sectorSuitability(const TableProfile &start, const Vocabulary &vocabulary)
{
    constexpr uint64_t MinRows = 3;
    const SiteRoles roles = recogniseSiteLayout(start, vocabulary).roles;
    return roles.transmitters.empty() ? 0 : start.rowCount >= MinRows ? 2 : 1;
}

SiteKeys::SiteKeys(const TableProfile &sites, const SiteRoles &siteRoles,
                   const TableProfile &sectors, const SiteRoles &sectorRoles)
    : m_sites(&sites)
    , m_siteRoles(&siteRoles)
    , m_sectors(&sectors)
    , m_sectorRoles(&sectorRoles)
{
    addColumn(siteRoles.siteId);
    addColumn(siteRoles.siteName);
    std::set<std::string> names;
    for (const Field &field : sectors.fields)
        names.insert(folded(field.name));
    for (std::size_t i = 0; i < sites.fields.size() && m_columns.size() < MaxKeyColumns; ++i) {
        if (names.contains(folded(sites.fields[i].name)))
            addColumn(static_cast<int>(i));
    }
}

void SiteKeys::addColumn(int field)
{
    const bool isKnown =
        std::any_of(m_columns.begin(), m_columns.end(),
                    [field](const Column &column) { return column.field == field; });
    if (field >= 0 && !isKnown)
        m_columns.push_back({field, {}});
}

void SiteKeys::add(const std::vector<const Cell *> &cells, std::size_t site)
{
    m_siteCount = std::max(m_siteCount, site + 1);
    for (Column &column : m_columns) {
        if (std::string key = joinKey(fieldText(cells, column.field)); !key.empty())
            column.sites.emplace(std::move(key), site);
    }
}

double SiteKeys::pointsOfNames(const Column &column, int sectorField) const
{
    double points = column.field == m_siteRoles->siteId ? PointsOfId : 0;
    points += namesSite(roleOf(*m_sectorRoles, sectorField)) ? PointsOfRole : 0;
    const auto name = [](const TableProfile &table, int field) {
        return folded(table.fields[static_cast<std::size_t>(field)].name);
    };
    points += name(*m_sites, column.field) == name(*m_sectors, sectorField) ? PointsOfSameName : 0;
    return points;
}

bool SiteKeys::choose(bool byName)
{
    double best = 0;
    for (std::size_t at = 0; at < m_sectors->fields.size(); ++at) {
        const int field = static_cast<int>(at);
        const Role role = roleOf(*m_sectorRoles, field);
        if (role != Role::None && role != Role::SectorId && !namesSite(role))
            continue;
        const std::vector<std::string> keys = keysOf(m_sectors->sampledColumns[at]);
        for (std::size_t i = 0; i < m_columns.size(); ++i) {
            const auto &sites = m_columns[i].sites;
            if (sites.size() * 2 < m_siteCount) // it does not distinguish the sites
                continue;
            const auto found = std::count_if(keys.begin(), keys.end(),
                                             [&](const auto &key) { return sites.contains(key); });
            const double share = keys.empty() ? 0 : double(found) / double(keys.size());
            const double names = pointsOfNames(m_columns[i], field);
            if (share < MinShare && !(byName && names >= PointsOfSameName))
                continue;
            if (const double points = share * PointsOfShare + names; points > best) {
                best = points;
                m_chosen = i;
                m_sectorField = field;
            }
        }
    }
    return m_sectorField >= 0;
}

std::optional<std::size_t> SiteKeys::find(const std::string &id) const
{
    const auto &sites = m_columns[m_chosen].sites;
    const auto found = sites.find(joinKey(id));
    return found == sites.end() ? std::nullopt : std::optional(found->second);
}

} // namespace vlt::driver
