#pragma once

#include "plugins/scene/mesh/Mesh.h"
#include "plugins/scene/pylon/AntennaPlaces.h"

namespace vlt::scene {

/// Adds a microwave antenna about the origin that faces +y: reflector, rim, shroud with a coloured
/// mark, and a cover over the feed.
void addDish(Mesh &matt, const AntennaPlace &place, bool detailed);

/// Place of the reflector's back along y, so far from its axis; metres.
double dishBack(const AntennaSize &size, double fromAxis);

/// Of the part behind the reflector, metres.
double dishHubRadius(const AntennaSize &size);

} // namespace vlt::scene
