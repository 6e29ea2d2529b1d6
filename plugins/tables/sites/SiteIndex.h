#pragma once

#include "plugins/tables/sites/PositionReader.h"
#include "plugins/tables/sites/TransmitterReader.h"

#include <cstdint>
#include <span>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace vlt::driver {

/// A site whose transmitters stand in several rows.
struct IndexedSite
{
    int64_t firstRow = 0;
    std::string id;    ///< empty if the table names no sites
    Position position; ///< in the file's system, of the first row that has one
    std::size_t firstTransmitter = 0;
    std::size_t transmitterCount = 0;
};

/// The sites of a table whose transmitters stand in several rows, or in another table. Rows belong
/// to a site by its id, else by the position and the name, whose sector does not count. A row
/// without id and position continues the site of the row above, as merged cells do.
class SiteIndex
{
public:
    SiteIndex(const TableProfile &table, const SiteRoles &roles, CoordinateUnit unit);

    /// Adds a row and returns the index of its site. Rows are added in the order of the file.
    std::size_t add(int64_t row, const std::vector<const Cell *> &cells, const Position &position,
                    std::vector<std::optional<TransmitterValues>> transmitters);
    /// Adds transmitters to a site.
    void addTransmitters(std::size_t site,
                         std::vector<std::optional<TransmitterValues>> transmitters);
    /// To be called after the last row.
    void finish();

    const std::vector<IndexedSite> &sites() const { return m_sites; }
    /// The site that begins in a row; null if none does.
    const IndexedSite *beginningIn(int64_t row) const;
    std::span<const TransmitterValues> transmittersOf(const IndexedSite &site) const
    {
        return std::span(m_transmitters).subspan(site.firstTransmitter, site.transmitterCount);
    }
    /// The smallest and the largest number of transmitters of a site.
    std::pair<std::size_t, std::size_t> transmitterRange() const;
    /// Adds the contradictions between a row and the site that has its id.
    void addProblems(int64_t row, std::vector<RowProblem> &problems) const;

private:
    /// A row whose id stands for a site elsewhere.
    struct Conflict
    {
        int64_t row = 0;
        std::size_t other = 0; ///< the site that has the id
        double distanceM = 0;
    };

    std::size_t siteOf(int64_t row, const std::vector<const Cell *> &cells,
                       const Position &position);
    std::string keyOf(const std::string &id, const std::string &name,
                      const Position &position) const;
    bool isSame(const IndexedSite &site, const std::string &name, const Position &position) const;

    const TableProfile *m_table;
    const SiteRoles *m_roles;
    CoordinateUnit m_unit;
    std::vector<IndexedSite> m_sites;
    std::vector<std::size_t> m_next; ///< by site: the next one with its key
    std::unordered_map<std::string, std::size_t> m_firstOfKey;
    std::vector<TransmitterValues> m_transmitters;
    std::vector<std::size_t> m_siteOfTransmitter;
    std::vector<Conflict> m_conflicts; ///< by ascending row
};

} // namespace vlt::driver
