#pragma once

#include "plugins/tables/sites/SiteRoles.h"

#include <string>
#include <unordered_set>
#include <vector>

namespace vlt::driver {

/// How well the start of a sheet suits a table of transmitters, from 0 to
/// HighestSectorSuitability: it has their columns, it has more rows than a legend.
constexpr int HighestSectorSuitability = 2;
int sectorSuitability(const TableProfile &start, const Vocabulary &vocabulary);

/// Finds the columns that join a table of sites and a table of transmitters.
class JoinColumns
{
public:
    JoinColumns(const TableProfile &sites, const SiteRoles &siteRoles, const TableProfile &sectors,
                const SiteRoles &sectorRoles);

    /// Adds a row of the table of sites.
    void add(const std::vector<const Cell *> &cells);
    /// Chooses the columns after all sites were added: those with the largest share of sampled
    /// values that are found among the sites; their names and how well they distinguish the sites
    /// help. With `byName`, the names suffice, because the first transmitters may be those of other
    /// sites. False if there are no such columns.
    bool choose(bool byName);
    /// The field of the table of sites that joins.
    int siteField() const { return m_siteField; }
    /// The field of the table of transmitters with the id or name of the site.
    int sectorField() const { return m_sectorField; }
    /// Why these fields have ids or names of sites, as texts for the user.
    std::string siteEvidence() const;
    std::string sectorEvidence() const;

private:
    /// A column of the table of sites.
    struct Column
    {
        int field = -1;
        std::unordered_set<std::string> keys;
    };

    bool isNamedAlike(int siteField, int sectorField) const;

    const TableProfile *m_sites;
    const SiteRoles *m_siteRoles;
    const TableProfile *m_sectors;
    const SiteRoles *m_sectorRoles;
    std::vector<Column> m_columns;
    std::size_t m_rowCount = 0;
    int m_siteField = -1;
    int m_sectorField = -1;
};

} // namespace vlt::driver
