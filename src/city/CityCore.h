#pragma once

#include "city/Footprints.h"

#include <optional>
#include <span>

namespace vlt::city {

/// The buildings of a city without those that lie far from all others, perhaps by a mistake in
/// their positions.
struct CityCore
{
    Place least; ///< of the extent, in the city's frame
    Place most;
    std::size_t far = 0;        ///< number of the features of the others
    std::uint32_t farthest = 0; ///< in footprints.buildings
    double distanceM = 0;       ///< of the farthest from the extent
};

/// The core of a city. Buildings are far if their distance from the middle nine tenths is more than
/// 20 km and more than 20 times the extent of these, in one direction.
///
/// @param positions  parallel to footprints.positions, in the city's frame, metres
/// @return           nothing if no building is far
std::optional<CityCore> coreOf(const Footprints &footprints, std::span<const Place> positions);

} // namespace vlt::city
