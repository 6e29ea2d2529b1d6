#pragma once

#include "plugins/tables/doctor/Correction.h"
#include "plugins/tables/doctor/Finding.h"

namespace vlt::driver {

/// The first rows of a finding as a text: "5, 9, 12 ..." if it concerns further ones.
std::string rowsText(const Finding &finding);

/// The English words for the coordinates that a correction changes.
std::string coordinatesText(const Correction &correction, bool isGeographic);

} // namespace vlt::driver
