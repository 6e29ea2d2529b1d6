#pragma once

#include "tables/SystemProblems.h"

namespace vlt::tables {

/// Why no layer can be made with two systems: systemRefusal(), or one of them is not known; in the
/// chosen language then. None where both can be used; an empty one can.
std::optional<Error> systemObstacle(const geodata::SystemPair &systems);

} // namespace vlt::tables
