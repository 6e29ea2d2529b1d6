#pragma once

#include "plugins/tables/ogr/FieldCells.h"
#include "plugins/tables/ogr/ProblemList.h"
#include "plugins/tables/ogr/SecondTable.h"
#include "plugins/tables/sites/SiteIndex.h"
#include "plugins/tables/sites/SiteLayout.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace vlt::driver {

/// The fields by which two tables are joined.
struct JoinFields
{
    int site = -1;   ///< of the table of sites
    int sector = -1; ///< of the table of transmitters: the id or name of the site
};

/// The sites of a table with the transmitters of another one.
struct JoinedSites
{
    std::shared_ptr<const SiteIndex> index;
    JoinFields fields;
    std::vector<TransmitterFields> transmitters; ///< columns of the table of transmitters
    SecondRoles roles;                           ///< of the table of transmitters
    ProblemList problems;                        ///< of the table of transmitters
};

/// The indices of sites in their table, by joinKey() of the field that joins.
using SiteNumbers = std::unordered_map<std::string, std::size_t>;

/// A row of a table of transmitters.
struct SectorRow
{
    int64_t number = 0;
    std::optional<std::size_t> site; ///< its index; a row without an id has that of the row above
    std::vector<std::optional<TransmitterValues>> transmitters;
    bool losesTransmitters = false; ///< all of them have values that cannot be used
    std::vector<RowProblem> problems;
};

/// Reads the rows of a table of transmitters, which names the sites of another table. Rows without
/// an id continue the site of the row above, as merged cells do.
class SectorRows
{
public:
    /// @param sectors  has to exist as long as this object, as has `sites`
    /// @param idField  with the id or name of the site
    SectorRows(const SecondTable &sectors, int idField, const SiteNumbers &sites);

    /// Goes to the next row; false after the last.
    bool advance();
    /// Goes to the next row that holds anything, of which only rows of data have more than a
    /// number; Nothing after the last.
    RowKind advanceToAny();
    SectorRow &row() { return m_row; }

private:
    void read();
    void findSite(const std::vector<const Cell *> &cells);

    const TableProfile &m_table;
    SiteRoles m_roles;
    int m_idField;
    const SiteNumbers &m_sites;
    TransmitterReader m_reader;
    FieldCells m_cells;
    std::unique_ptr<DataRows> m_rows;
    SectorRow m_row;
};

/// Starts reading the rows of a table.
using OpenRows = std::function<std::unique_ptr<DataRows>()>;

/// Reads the sites of a table and the transmitters of another one, in which a column has the ids or
/// names of the sites. Nothing if there is no such column, if it names none of the sites, or if
/// there are no columns of transmitters.
///
/// @param table   properties of the table of sites, which `index` refers to, with `layout`: the
///                column of ids that joins becomes that of the sites
/// @param byName  the names of the columns suffice to join the tables
std::optional<JoinedSites> joinSectors(const TableProfile &table, SiteLayout &layout,
                                       const OpenRows &siteRows, const SecondTable &sectors,
                                       bool byName);

} // namespace vlt::driver
