#pragma once

#include "plugins/tables/roles/Vocabulary.h"
#include "plugins/tables/sites/CoordinateColumns.h"

#include <string>
#include <vector>

namespace vlt::driver {

/// EPSG codes of the systems that a table names in words: in the titles above its header or in the
/// names of the columns of a position. The longest name comes first: "CH1903+ LV95" before "LV95".
std::vector<std::string> systemsNamed(const TableProfile &table, const PointFields &point,
                                      const Vocabulary &vocabulary);

} // namespace vlt::driver
