#include "plugins/tables/sites/SectorTable.h"

#include "contract/TableTexts.h"
#include "plugins/tables/roles/ColumnFacts.h"
#include "plugins/tables/roles/NameWords.h"
#include "plugins/tables/roles/RoleEvidence.h"
#include "plugins/tables/sites/JoinKey.h"
#include "plugins/tables/sites/PositionReader.h"
#include "plugins/tables/sites/SiteLayout.h"

#include <algorithm>
#include <set>

namespace vlt::driver {

namespace {

constexpr std::size_t MaxKeyColumns = 6; ///< that are compared, of the table of sites
constexpr double MinShare = 0.3;         ///< of ids that are found
constexpr double MinDistinct = 0.5;      ///< share of different values among the sites
constexpr double PointsOfShare = 100;
constexpr double PointsOfDistinct = 40;
constexpr double PointsOfNames = 50;
constexpr double PointsOfSiteName = -20; ///< ids are safer than names

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

JoinColumns::JoinColumns(const TableProfile &sites, const SiteRoles &siteRoles,
                         const TableProfile &sectors, const SiteRoles &sectorRoles)
    : m_sites(&sites)
    , m_siteRoles(&siteRoles)
    , m_sectors(&sectors)
    , m_sectorRoles(&sectorRoles)
{
    std::set<std::string> names;
    for (const Field &field : sectors.fields)
        names.insert(folded(field.name));
    for (std::size_t i = 0; i < sites.fields.size(); ++i) {
        const int field = static_cast<int>(i);
        const bool isSame =
            m_columns.size() < MaxKeyColumns && names.contains(folded(sites.fields[i].name));
        if (isSame || field == siteRoles.siteId || field == siteRoles.siteName)
            m_columns.push_back({field, {}});
    }
}

void JoinColumns::add(const std::vector<const Cell *> &cells)
{
    ++m_rowCount;
    for (Column &column : m_columns) {
        if (std::string key = joinKey(fieldText(cells, column.field)); !key.empty())
            column.keys.insert(std::move(key));
    }
}

std::string JoinColumns::siteEvidence() const
{
    const auto column = std::find_if(m_columns.begin(), m_columns.end(),
                                     [this](const Column &of) { return of.field == m_siteField; });
    return contract::formatted("MESS_TAB_EVIDENCE_TEXTS",
                               {m_sites->nameInHeader(m_siteField), std::to_string(m_rowCount),
                                std::to_string(column->keys.size())});
}

std::string JoinColumns::sectorEvidence() const
{
    const auto field = static_cast<std::size_t>(m_sectorField);
    return roleEvidence(m_sectors->nameInHeader(m_sectorField), Role::SiteId,
                        factsOf(m_sectors->sampledColumns[field], installedVocabulary().words));
}

/// Whether the names of two columns say that both hold the ids of sites.
bool JoinColumns::isNamedAlike(int siteField, int sectorField) const
{
    const auto name = [](const TableProfile &table, int field) {
        return folded(table.fields[static_cast<std::size_t>(field)].name);
    };
    return namesSite(roleOf(*m_sectorRoles, sectorField)) ||
           name(*m_sites, siteField) == name(*m_sectors, sectorField);
}

bool JoinColumns::choose(bool byName)
{
    double best = 0;
    for (std::size_t at = 0; at < m_sectors->fields.size(); ++at) {
        const int field = static_cast<int>(at);
        const Role role = roleOf(*m_sectorRoles, field);
        if (role != Role::None && role != Role::SectorId && !namesSite(role))
            continue;
        const std::vector<std::string> ids = keysOf(m_sectors->sampledColumns[at]);
        for (const Column &column : m_columns) {
            const double distinct = double(column.keys.size()) / double(m_rowCount);
            const auto found = std::count_if(ids.begin(), ids.end(), [&](const std::string &id) {
                return column.keys.contains(id);
            });
            const double share = ids.empty() ? 0 : double(found) / double(ids.size());
            const bool isNamed = isNamedAlike(column.field, field);
            if (distinct < MinDistinct || (share < MinShare && !(byName && isNamed)))
                continue;
            const double points = share * PointsOfShare + distinct * PointsOfDistinct +
                                  (isNamed ? PointsOfNames : 0) +
                                  (column.field == m_siteRoles->siteName ? PointsOfSiteName : 0);
            const bool isBetter = points > best || (points == best && column.field < m_siteField);
            if (!isBetter)
                continue;
            best = points;
            m_siteField = column.field;
            m_sectorField = field;
        }
    }
    return m_sectorField >= 0;
}

} // namespace vlt::driver
