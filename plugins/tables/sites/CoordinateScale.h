#pragma once

#include "plugins/tables/roles/Vocabulary.h"
#include "plugins/tables/sites/CoordinateColumns.h"
#include "plugins/tables/table/Table.h"

#include <vector>

namespace vlt::driver {

/// The unit of coordinates that are no degrees or metres, from the names and samples of the
/// columns: "Easting (km)", "Latitude (0.000001 degree)".
CoordinateScale findScale(const PointFields &point, const std::vector<Field> &fields,
                          const Vocabulary &vocabulary);

} // namespace vlt::driver
