#pragma once

#include "plugins/tables/roles/Vocabulary.h"

#include <string_view>

namespace vlt::driver {

/// Whether values of a role can be in the unit that a name has in brackets: not an azimuth in
/// "Distance along azimuth [m]". True for a name without such a unit.
bool suitsUnitInBrackets(Role role, std::string_view name, const Vocabulary &vocabulary);

} // namespace vlt::driver
