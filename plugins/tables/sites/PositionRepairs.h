#pragma once

#include "plugins/tables/sites/PositionReader.h"

#include <cstdint>
#include <vector>

namespace vlt::driver {

/// Adds the coordinates of a row that were read by a guess: grouped thousands, the hemisphere
/// letter O. They are no problems, but a report of all rows names them.
void addRepairs(const TableProfile &table, const PointFields &point, CoordinateUnit unit,
                int64_t row, const std::vector<const Cell *> &cells,
                std::vector<RowProblem> &notes);

} // namespace vlt::driver
