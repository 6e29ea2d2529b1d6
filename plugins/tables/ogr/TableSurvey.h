#pragma once

#include "plugins/tables/doctor/Finding.h"
#include "plugins/tables/doctor/SurveyedPositions.h"
#include "plugins/tables/ogr/ProblemList.h"

#include <vector>

namespace vlt::driver {

/// The result of reading all rows of a table.
struct TableSurvey
{
    ProblemList problems;
    SurveyedPositions positions; ///< until the last row is read
    std::vector<Finding> findings;
};

} // namespace vlt::driver
