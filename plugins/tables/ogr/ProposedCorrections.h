#pragma once

#include "contract/PositionCorrection.h"
#include "plugins/tables/ogr/TableLayer.h"

#include <vector>

namespace vlt::driver {

using Corrections = std::vector<contract::PositionCorrection>;

/// The corrections that cure each finding; none for a finding without such a cure. Reads the table
/// again if they concern single rows, whose cells they quote. Throws RefusedFile.
std::vector<Corrections> proposedCorrections(const TableSource &source,
                                             const std::vector<Finding> &findings);

} // namespace vlt::driver
