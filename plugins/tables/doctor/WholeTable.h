#pragma once

#include "plugins/tables/doctor/CoordinateDoctor.h"

namespace vlt::driver {

/// A mistake in all positions: their unit, separators of thousands, the order of the coordinates,
/// their signs or decimal marks. `positions` must not be empty.
std::optional<Finding> mistakeOfAll(const std::vector<SurveyedPosition> &positions,
                                    const SystemFacts &system);

} // namespace vlt::driver
