#pragma once

#include "sites/Angle.h"
#include "sites/SiteLayout.h"
#include "table/Table.h"

#include <string>
#include <vector>

namespace vlt::tables {

/// One thing in a row that keeps it from being read in full.
struct RowProblem
{
    int64_t row = 0;     ///< number in the file; 0 for the table as a whole
    std::string column;  ///< name of the field; empty for the row as a whole
    bool isError = true; ///< the site has no position; otherwise only a value is lost
    std::string text;    ///< English, of the table of texts
};

/// A position in the file's coordinate system.
struct Position
{
    bool found = false;
    double x = 0;
    double y = 0;
};

/// Reads the position of each row. Nothing that cannot be read becomes 0: the row gets a problem
/// instead.
class SitePlacer
{
public:
    SitePlacer(const TableProfile &table, const SiteLayout &layout)
        : m_table(&table)
        , m_layout(&layout)
    {}

    /// `cells` holds the cell of each field, null where it is empty. A problem is appended where
    /// there is one.
    Position place(int64_t row, const std::vector<const Cell *> &cells,
                   std::vector<RowProblem> &problems) const;

private:
    bool readAxis(int64_t row, const CoordinateFields &fields, Axis axis,
                  const std::vector<const Cell *> &cells, double &value,
                  std::vector<RowProblem> &problems) const;
    RowProblem problem(int64_t row, int field, const std::string &value,
                       tabletexts::TextId why) const;

    const TableProfile *m_table;
    const SiteLayout *m_layout;
};

} // namespace vlt::tables
