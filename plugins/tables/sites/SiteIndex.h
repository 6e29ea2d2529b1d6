#pragma once

#include "plugins/tables/cells/HashIndex.h"
#include "plugins/tables/cells/StringPool.h"
#include "plugins/tables/sites/PositionReader.h"
#include "plugins/tables/sites/TransmitterStore.h"

#include <array>
#include <cstdint>
#include <deque>
#include <limits>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace vlt::driver {

/// A site whose transmitters stand in several rows.
struct IndexedSite
{
    int64_t firstRow = 0;
    double x = std::numeric_limits<double>::quiet_NaN(); ///< in the file's system; NaN for none
    double y = std::numeric_limits<double>::quiet_NaN();
    uint32_t id = 0;           ///< see SiteIndex::idOf()
    bool isWhole = false;      ///< the id has no sector at its end
    uint32_t operatorName = 0; ///< 0 for none
    uint32_t firstTransmitter = 0;
    uint32_t transmitterCount = 0;

    /// That of the first row that has one.
    Position position() const { return {x == x, x, y}; }
};

/// The sites of a table whose transmitters stand in several rows, or in another table. Rows belong
/// to a site by its id, else by the name and a position nearby; a sector at the end of the name
/// does not count. A row
/// without id and position continues the site of the row above, as merged cells do.
class SiteIndex
{
public:
    SiteIndex(const TableProfile &table, const SiteRoles &roles, CoordinateUnit unit,
              const Vocabulary &vocabulary);

    /// Adds a row and returns the index of its site. Rows are added in the order of the file. A
    /// cell of the site that was added before with the same values, such as that of the month
    /// before, is not added again.
    std::size_t add(int64_t row, const std::vector<const Cell *> &cells, const Position &position,
                    const std::vector<std::optional<TransmitterValues>> &transmitters);
    /// Adds transmitters to a site.
    void addTransmitters(std::size_t site,
                         const std::vector<std::optional<TransmitterValues>> &transmitters);
    /// To be called after the last row.
    void finish();

    const std::deque<IndexedSite> &sites() const { return m_sites; }
    /// Id or name of a site; empty if the table names no sites.
    std::string_view idOf(const IndexedSite &site) const { return m_ids[site.id]; }
    /// The site that begins in a row; null if none does.
    const IndexedSite *beginningIn(int64_t row) const;
    std::vector<TransmitterValues> transmittersOf(const IndexedSite &site) const;
    /// The smallest and the largest number of transmitters of a site.
    std::pair<std::size_t, std::size_t> transmitterRange() const;
    /// Adds the contradictions between a row and the site that has its id, and that its cell was
    /// added before.
    void addProblems(int64_t row, std::vector<RowProblem> &problems) const;

private:
    /// A row whose id stands for a site elsewhere.
    struct Conflict
    {
        int64_t row = 0;
        std::size_t other = 0; ///< the site that has the id
        double distanceM = 0;
    };

    /// By what a row finds its site.
    enum class KeyKind { Id, Name, Place, NamedPlace };
    struct Key
    {
        KeyKind kind;
        std::string_view text; ///< joinKey() of the id, or name without the sector; empty for Place
        Position position;
        std::string_view name; ///< with the sector
        std::string_view operatorName;

        bool isPlace() const { return kind == KeyKind::Place || kind == KeyKind::NamedPlace; }
    };

    uint32_t siteOf(int64_t row, const std::vector<const Cell *> &cells, const Position &position);
    std::size_t hashOf(const Key &key, int dx, int dy) const;
    bool hasKey(const IndexedSite &site, const Key &key) const;
    uint32_t find(const Key &key) const;
    uint32_t findNear(uint32_t first, const Key &key) const;
    uint32_t addSite(const IndexedSite &site, uint32_t first, const Key &key);
    std::pair<int64_t, int64_t> squareOf(const Key &key, int dx, int dy) const;
    bool isSame(const IndexedSite &site, const Key &key) const;
    uint32_t keep(std::string_view id);
    bool isRepeated(std::size_t site, const TransmitterValues &transmitter);
    void addTransmitter(std::size_t site, const TransmitterValues &transmitter);

    const TableProfile *m_table;
    const SiteRoles *m_roles;
    CoordinateUnit m_unit;
    const Vocabulary *m_vocabulary;
    int m_operator = -1;             ///< field
    std::deque<IndexedSite> m_sites; ///< in the order of their first rows
    StringPool m_ids;
    std::vector<uint32_t> m_next;      ///< by site: the next one with its id
    std::array<HashIndex, 4> m_ofKeys; ///< the first sites with the keys, by kind of key
    TransmitterStore m_transmitters;
    std::vector<uint32_t> m_siteOfTransmitter;
    /// Indexes of the transmitters in the order of their sites; empty if they are stored so.
    std::vector<uint32_t> m_order;
    std::vector<Conflict> m_conflicts; ///< by ascending row
    HashIndex m_ofCells;               ///< the transmitters with names of cells
    std::vector<int64_t> m_repeatedRows;
};

} // namespace vlt::driver
