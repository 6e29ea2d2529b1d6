#pragma once

#include "plugins/tables/cells/Cell.h"

#include <map>
#include <set>
#include <string>

namespace vlt::driver {

/// One of the first rows of a sheet, as a row of names.
struct HeaderRow
{
    int64_t number = 0;       ///< in the file, from 1
    uint64_t fingerprint = 0; ///< of the row, to find its repetitions
    /// By column; trimmed, with spaces for line breaks, cut if too long.
    std::map<int, std::string> texts;
    std::set<int> values; ///< columns with a number, a date or another value
};

HeaderRow readHeaderRow(const Row &row, uint64_t fingerprint);

/// The faults in a row of names: those of its cells, and texts that are cut.
std::vector<CellFault> headerFaults(const Row &row);

/// The first characters of a cell's text.
std::string startOfText(const Cell &cell, std::size_t characters);

/// Whether a row repeats one of the header, as in tables that were joined or printed page by page.
/// Capital letters are not compared, and columns may be missing.
bool repeats(const Row &row, const HeaderRow &header);

} // namespace vlt::driver
