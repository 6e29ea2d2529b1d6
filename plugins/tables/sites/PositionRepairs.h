#pragma once

#include "plugins/tables/sites/PositionReader.h"

#include <cstdint>
#include <vector>

namespace vlt::driver {

/// Adds the position of a row that was corrected as the mapping states, and coordinates that were
/// read by a guess: grouped thousands, the hemisphere letter O. They are no problems, but a report
/// of all rows names them.
void addRepairs(const TableProfile &table, const PointFields &point, CoordinateUnit unit,
                int64_t row, const std::vector<const Cell *> &cells,
                std::vector<RowProblem> &notes);

} // namespace vlt::driver
