#pragma once

#include "plugins/tables/table/ColumnStatistics.h"
#include "plugins/tables/table/Table.h"

#include <limits>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace vlt::driver {

/// Statistics of the columns, and the number of rows that they are based on.
struct TableSample
{
    std::vector<ColumnStatistics> columns;
    std::size_t rows = 0;
    std::vector<std::vector<std::pair<int, std::string>>> firstRows; ///< columns and texts

    void add(const Row &row);
    /// The texts of the first rows, in the columns that are fields.
    std::vector<std::vector<std::string>> sampledColumns(const std::vector<Field> &fields) const;
    /// The columns that are already known to be texts.
    std::vector<char> textColumns() const;
};

/// Reads all rows once, or the first `maxRows` with data: counts them, marks positions, takes
/// samples, and finds the rows that hold no data.
void scanTable(const Sheet &sheet, const std::shared_ptr<TableProfile> &profile,
               const Vocabulary &vocabulary, TableSample &sample,
               uint64_t maxRows = std::numeric_limits<uint64_t>::max());

} // namespace vlt::driver
