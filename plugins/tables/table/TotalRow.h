#pragma once

#include "plugins/tables/cells/Cell.h"
#include "plugins/tables/roles/Vocabulary.h"
#include "plugins/tables/table/ColumnStatistics.h"

#include <vector>

namespace vlt::driver {

/// Whether a row can be one of sums, means or counts: it begins with a word for them, all its other
/// values are numbers, and a column that other rows fill is empty.
///
/// @param columns  statistics of other rows, `rowCount` in number
bool isTotalRow(const Row &row, const std::vector<ColumnStatistics> &columns, std::size_t rowCount,
                const Vocabulary &vocabulary);

} // namespace vlt::driver
