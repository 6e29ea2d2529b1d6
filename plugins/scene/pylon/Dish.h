#pragma once

#include "plugins/scene/mesh/Mesh.h"
#include "plugins/scene/pylon/AntennaPlaces.h"

namespace vlt::scene {

/// Adds a microwave antenna about the origin that faces +y: reflector, rim, shroud with a coloured
/// mark, and a cover in front of the feed.
void addDish(Mesh &matt, const AntennaPlace &place, bool detailed);

/// The y of the reflector's back at a distance from its axis, in metres.
double dishBack(const AntennaSize &size, double fromAxis);

/// Radius of the hub behind the reflector, in metres.
double dishHubRadius(const AntennaSize &size);

} // namespace vlt::scene
