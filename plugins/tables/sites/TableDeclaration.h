#pragma once

#include "plugins/tables/sites/CoordinateColumns.h"

#include <string>

namespace vlt::driver {

/// What a table tells about itself, whatever its rows are.
struct TableDeclaration
{
    CoordinateUnit unit = CoordinateUnit::Degrees;
    std::string format; ///< starts with the planning tool that wrote the table, or with generic
    std::string epsg;   ///< code that the file declares; empty when it declares none
};

/// The code that the titles of a table, its names or a column of codes declare; `point` is where
/// its coordinates are.
std::string findEpsg(const TableProfile &table, const PointFields &point, CoordinateUnit unit);

} // namespace vlt::driver
