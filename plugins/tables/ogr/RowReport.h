#pragma once

#include "plugins/tables/ogr/TableLayer.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace vlt::driver {

/// What becomes of a row.
enum class Fate {
    Used,   ///< it gives a site or a link
    Merged, ///< it adds to a site that begins in another row
    LeftOut,
};

/// A row and its fate.
struct ReportedRow
{
    bool isSecond = false; ///< of the table that completes the other
    RowKind kind = RowKind::Data;
    int64_t number = 0; ///< in its file, from 1
    Fate fate = Fate::LeftOut;
    std::string site;     ///< id or name of the site or link; may be empty
    int64_t firstRow = 0; ///< of the site or link; 0 if the row is left out
    /// Why the row is left out, or what was repaired or lost.
    std::vector<RowProblem> reasons;
};

/// Finds the fates of the rows of one kind of table.
class RowFates
{
public:
    virtual ~RowFates() = default;

    /// Finds the fate of a row of data, whose number and problems with cells are known already. All
    /// rows are read, in the order of the file.
    virtual void read(const FieldCells &cells, ReportedRow &row) = 0;
    /// The same for the next row that holds anything in the table that completes the other, after
    /// the last row of that. Only rows of data have a fate; Nothing if there is no row.
    virtual RowKind readSecond(const SecondTable &second, ReportedRow &row) = 0;
};

/// Reads a table once more and reports the fate of every row that holds something; then those of
/// the table that completes it. Functions that read throw RefusedFile.
class RowReport
{
public:
    explicit RowReport(const TableSource &source);

    /// Goes to the next row, which may belong to the head; false after the last.
    bool advance();
    const ReportedRow &row() const { return m_row; }
    /// All cells of the row, if it is none of the second table.
    const Row &cells() { return m_rows->cellsWithTexts(); }
    /// The table that completes the other, after the last row of that; nothing if there is none.
    const std::optional<SecondTable> &second() const { return m_second; }

private:
    void explainKind();

    TableSource m_source;
    std::unique_ptr<DataRows> m_rows;
    FieldCells m_cells;
    std::unique_ptr<RowFates> m_fates;
    ReportedRow m_row;
    std::optional<SecondTable> m_second;
    bool m_isSecond = false;
};

/// Numbers of rows by fate.
struct RowCounts
{
    int64_t used = 0;
    int64_t merged = 0;
    int64_t leftOut = 0;

    void add(Fate fate);
    int64_t rows() const { return used + merged + leftOut; }
};

} // namespace vlt::driver
