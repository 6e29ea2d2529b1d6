#pragma once

#include "plugins/tables/roles/Vocabulary.h"
#include "plugins/tables/sites/CoordinateColumns.h"
#include "plugins/tables/table/RowProblem.h"
#include "plugins/tables/table/Table.h"

#include <vector>

namespace vlt::driver {

/// The unit of coordinates that are no degrees or metres, from the names and samples of the
/// columns: "Easting (km)", "Latitude (0.000001 degree)".
CoordinateScale findScale(const PointFields &point, const std::vector<Field> &fields,
                          const Vocabulary &vocabulary);

/// Whether coordinates whose names would suit metres are degrees: they lie in the range of degrees,
/// and have the decimals of degrees, or the names state degrees ("Breite [°N]", "WGS84 N").
bool areDegrees(const PointFields &point, const std::vector<Field> &fields,
                const Vocabulary &vocabulary);

/// Adds a problem if the unit of the positions is a guess.
void addScaleProblem(const PointFields &point, const std::vector<Field> &fields,
                     std::vector<RowProblem> &problems);

} // namespace vlt::driver
