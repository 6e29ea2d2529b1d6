#pragma once

#include "plugins/scene/buildings/CityModel.h"

#include <osg/BoundingBox>

#include <optional>

namespace vlt::scene {

/// The buildings of a city without those that lie far from all others, perhaps by a mistake in
/// their positions.
struct CityCore
{
    osg::BoundingBoxd extent;   ///< in the city's frame; its heights are not set
    std::size_t far = 0;        ///< number of the features of the others
    std::uint32_t farthest = 0; ///< in city.footprints.buildings
    double distanceM = 0;       ///< of the farthest from the extent
};

/// The core of a city. Buildings are far if their distance from the middle nine tenths is more than
/// 20 km and more than 20 times the extent of these, in one direction.
///
/// @return  nothing if no building is far
std::optional<CityCore> coreOf(const CityModel &city);

} // namespace vlt::scene
