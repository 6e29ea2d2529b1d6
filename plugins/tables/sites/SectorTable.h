#pragma once

#include "plugins/tables/sites/SiteRoles.h"

#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace vlt::driver {

/// How well the start of a sheet suits a table of transmitters, from 0 to
/// HighestSectorSuitability: it has their columns, it has more rows than a legend.
constexpr int HighestSectorSuitability = 2;
int sectorSuitability(const TableProfile &start, const Vocabulary &vocabulary);

/// The ids and names of sites, by which the rows of a table of transmitters find their sites.
class SiteKeys
{
public:
    /// The sites are added later.
    SiteKeys(const TableProfile &sites, const SiteRoles &siteRoles, const TableProfile &sectors,
             const SiteRoles &sectorRoles);

    /// Adds a row of the table of sites.
    void add(const std::vector<const Cell *> &cells, std::size_t site);
    /// Chooses the columns that join both tables, after all sites were added: those with the
    /// largest share of sampled ids that are found; the names of the columns help. With
    /// `byName`, the names suffice, because the first rows may be those of other sites. False if
    /// there are no such columns.
    bool choose(bool byName);
    /// The field of the table of transmitters with the id of the site.
    int sectorField() const { return m_sectorField; }
    /// The site with that id.
    std::optional<std::size_t> find(const std::string &id) const;

private:
    /// A column of the table of sites.
    struct Column
    {
        int field = -1;
        std::unordered_map<std::string, std::size_t> sites; ///< by key
    };

    void addColumn(int field);
    double pointsOfNames(const Column &column, int sectorField) const;

    const TableProfile *m_sites;
    const SiteRoles *m_siteRoles;
    const TableProfile *m_sectors;
    const SiteRoles *m_sectorRoles;
    std::vector<Column> m_columns;
    std::size_t m_siteCount = 0;
    std::size_t m_chosen = 0; ///< index of the column that joins
    int m_sectorField = -1;
};

} // namespace vlt::driver
