#pragma once

#include "city/CityInputs.h"

namespace vlt::city {

/// Whether the heights of buildings that are read as heights above the ground are probably above
/// sea level: nearly all of them exceed the ground by the height of a house, and together they
/// follow it, or no town has so many buildings of such a height.
///
/// False for fewer than 10 heights, and if the footprints state the ground.
bool areProbablyAboveSea(const CityInputs &city);

} // namespace vlt::city
