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

/// Exchanges the columns X and Y of a position if the table names a system whose X points to the
/// north, and the values can be positions in it.
///
/// @param problem  gets a text for the user if the values could also be read the other way round
void useNorthX(const TableProfile &table, const Vocabulary &vocabulary, PointFields &point,
               std::string &problem);

/// EPSG code of the longitudes and latitudes of a datum that a text names: "Lat (NAD27)". Empty for
/// none; the longest name counts.
std::string datumNamed(const std::string &text, const Vocabulary &vocabulary);

} // namespace vlt::driver
