#pragma once

#include "plugins/tables/ogr/ProblemList.h"
#include "plugins/tables/sites/TableDeclaration.h"
#include "plugins/tables/table/Table.h"

#include <functional>
#include <memory>
#include <vector>

namespace vlt::driver {

/// Reads the rows of a table with zones of UTM until two of them lie in different zones. If there
/// are such rows, the positions become longitudes and latitudes.
///
/// @param points  the columns of the positions in a row
/// @param rows    starts reading the rows
void surveyZones(const std::vector<PointFields *> &points, TableDeclaration &declaration,
                 const TableProfile &table, const std::function<std::unique_ptr<DataRows>()> &rows);

/// Reports that the hemisphere of zones is assumed.
void addZoneProblems(const PointFields &point, ProblemList &problems);

} // namespace vlt::driver
