#pragma once

#include "contract/TableKind.h"
#include "plugins/tables/cells/RowReader.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace vlt::driver {

/// The row that names the columns, and what stands above it.
struct Header
{
    int64_t row = 0; ///< number in the file, from 1
    std::map<int, std::string>
        names;                       ///< by column, trimmed, line breaks made spaces, long ones cut
    std::vector<std::string> titles; ///< texts of the rows above
    int wordCount = 0;               ///< names that tables of that kind use
    uint64_t fingerprint = 0;        ///< of the row, to find where it is repeated
    bool hasRowsBelow = false;
    std::vector<CellFault> faults; ///< what could not be read in the row
};

/// Looks for the header in the first rows of a sheet: the row with the most words of tables of that
/// kind, two at least; else the first row with two cells or more, if none of its cells is a number,
/// a date or the like. Nothing when there is none. `widest` grows to the number of cells of the
/// widest row that was looked at.
std::optional<Header> findHeader(const Sheet &sheet, contract::TableKind kind, std::size_t &widest);

/// Whether a row repeats the header, as lists that were joined or printed page by page do.
bool repeatsHeader(const Row &row, const Header &header);

} // namespace vlt::driver
