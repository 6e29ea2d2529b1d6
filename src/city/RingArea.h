#pragma once

#include "contract/Place.h"

#include <span>

namespace vlt::city {

/// Whether a ring encloses an area, as a footprint has to. A ring may cross itself: its area is
/// that within an odd number of its windings.
bool hasArea(std::span<const contract::Place> ring);

} // namespace vlt::city
