#pragma once

#include "tables/SystemProblems.h"

namespace vlt::tables {

/// Why no layer can be made with two systems: systemRefusal(), or an error in the chosen language
/// if one of them is not known. None if both can be used; an empty system can be used.
std::optional<Error> systemObstacle(const geodata::SystemPair &systems);

/// Why no layer can be made from a table in metres: neither its system nor that of the project is
/// known. None for all other tables.
std::optional<Error> undeclaredObstacle(const TableFileInfo &file,
                                        const geodata::SystemPair &systems);

} // namespace vlt::tables
