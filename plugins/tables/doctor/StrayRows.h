#pragma once

#include "plugins/tables/doctor/CoordinateDoctor.h"

namespace vlt::driver {

/// The findings about some positions that lie far from the others: those that a correction puts
/// among the others, and those that are far from everything. Adds their rows to `rows`.
std::vector<Finding> mistakesOfSome(const std::vector<SurveyedPosition> &positions,
                                    const SystemFacts &system, std::vector<int64_t> &rows);

} // namespace vlt::driver
