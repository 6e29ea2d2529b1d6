#pragma once

#include "contract/TableKind.h"
#include "plugins/tables/cells/RowReader.h"
#include "plugins/tables/roles/Vocabulary.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace vlt::driver {

/// The row that names the columns, and the rows above it.
struct Header
{
    int64_t row = 0; ///< number in the file, from 1
    /// By column; trimmed, with spaces for line breaks, cut if too long.
    std::map<int, std::string> names;
    std::vector<std::string> titles; ///< texts of the rows above
    int wordCount = 0;               ///< number of names that tables of that kind use
    uint64_t fingerprint = 0;        ///< of the row, to find its repetitions
    bool hasRowsBelow = false;
    std::vector<CellFault> faults; ///< of the row
};

/// Finds the header in the first rows of a sheet: the row with the largest number of words of
/// tables of that kind, with two at least; else the first row with at least two cells, if none of
/// them is a number, a date or another value. Nothing if there is none. `widest` is raised to the
/// number of cells of the widest row that was read.
std::optional<Header> findHeader(const Sheet &sheet, contract::TableKind kind,
                                 const Vocabulary &vocabulary, std::size_t &widest);

/// Whether a row repeats the header, as in tables that were joined or printed page by page.
bool repeatsHeader(const Row &row, const Header &header);

} // namespace vlt::driver
