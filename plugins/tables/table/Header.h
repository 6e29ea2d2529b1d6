#pragma once

#include "contract/TableKind.h"
#include "plugins/tables/cells/RowReader.h"
#include "plugins/tables/roles/Vocabulary.h"
#include "plugins/tables/table/HeaderRow.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace vlt::driver {

/// The rows that name the columns, and the rows above them.
struct Header
{
    int64_t row =
        0; ///< number in the file, from 1: the one with the names of most columns; 0 without one
    std::vector<HeaderRow>
        rows; ///< those that name the columns, from the top; none without a header
    std::vector<HeaderRow> furtherRows; ///< below them: the same names in other words, units
    /// By column; trimmed, with spaces for line breaks, cut if too long.
    std::map<int, std::string> names;
    std::map<int, std::string> units; ///< by column, as far as the vocabulary knows them
    std::vector<std::string> titles;  ///< texts of the rows above
    int wordCount = 0;                ///< number of names that tables of that kind use
    /// How the columns of a table without a header were recognised, as text for the user; empty if
    /// it has one.
    std::string absence;
    bool hasRowsBelow = false;
    std::vector<CellFault> faults; ///< of the row

    /// Number of the last row of the header in the file; the data begin below it.
    int64_t lastRow() const
    {
        return !furtherRows.empty() ? furtherRows.back().number
               : rows.empty()       ? 0
                                    : rows.back().number;
    }
};

/// Numbers of header rows, ascending; empty if there are none.
using HeaderRowNumbers = std::vector<int64_t>;

/// Finds the header in the first rows of a sheet: the row with the largest number of words of
/// tables of that kind, with two at least; else none, if the values show what the columns are; else
/// the first row with at least two cells, if none of them is a number, a date or another value.
/// Nothing if there is none. `widest` is raised to the
/// number of cells of the widest row that was read.
///
/// @param stated  the rows that are the header, if these exist; with an empty list, the values or
///                else the numbers of the columns give their names
std::optional<Header> findHeader(const Sheet &sheet, contract::TableKind kind,
                                 const Vocabulary &vocabulary,
                                 const std::optional<HeaderRowNumbers> &stated,
                                 std::size_t &widest);

} // namespace vlt::driver
