#pragma once

#include "plugins/tables/ogr/FieldCells.h"
#include "plugins/tables/ogr/ProblemList.h"
#include "plugins/tables/ogr/SecondTable.h"
#include "plugins/tables/roles/Vocabulary.h"
#include "plugins/tables/sites/SiteDirectory.h"
#include "plugins/tables/sites/SiteLayout.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace vlt::driver {

/// How well the start of a sheet suits a table of sites at the ends of links, from 0 to
/// HighestSiteSuitability: it has positions, and is no table of links itself.
int endSiteSuitability(const TableProfile &start, const Vocabulary &vocabulary);

/// The sites at the ends of links.
struct EndSites
{
    std::shared_ptr<const SiteDirectory> directory;
    TableDeclaration declaration; ///< of the table of sites
    SecondRoles roles;            ///< of that table
    ProblemList problems;         ///< of that table
};

/// A row of a table of sites at the ends of links.
struct EndSiteRow
{
    int64_t number = 0;
    std::string id;   ///< may be empty
    std::string name; ///< may be empty
    Position position;
    std::vector<RowProblem> problems;
};

/// Reads the rows of a table of sites at the ends of links.
class EndSiteRows
{
public:
    /// @param sites  has to exist as long as this object
    explicit EndSiteRows(const SecondTable &sites);

    const SiteLayout &layout() const { return m_layout; }
    /// Goes to the next row; false after the last.
    bool advance();
    /// Goes to the next row that holds anything, of which only rows of data have more than a
    /// number; Nothing after the last.
    RowKind advanceToAny();
    EndSiteRow &row() { return m_row; }

private:
    void read();

    SiteLayout m_layout;
    PositionReader m_positions;
    FieldCells m_cells;
    std::unique_ptr<DataRows> m_rows;
    EndSiteRow m_row;
};

/// Reads the positions of sites by their ids and names. Nothing if the table has no positions, or
/// neither ids nor names.
std::optional<EndSites> readEndSites(const SecondTable &sites);

} // namespace vlt::driver
