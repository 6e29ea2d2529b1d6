#pragma once

#include "plugins/tables/sites/CoordinateColumns.h"

#include <string>

namespace vlt::driver {

/// Properties that tables of sites and of links have in common.
struct TableDeclaration
{
    CoordinateUnit unit = CoordinateUnit::Degrees;
    std::string format; ///< starts with the planning tool that wrote the table, or with generic
    std::string epsg;   ///< code that the file declares; empty without a declaration
    /// Why the system or its axes may be other ones, as a text for the user; empty if clear.
    std::string systemProblem;
};

/// Finds the EPSG code that is declared by the titles of a table, by the names of the coordinate
/// columns or by a column of codes or datums. The unit has to be known.
void findSystem(const TableProfile &table, const PointFields &point, const Vocabulary &vocabulary,
                TableDeclaration &declaration);

} // namespace vlt::driver
