#pragma once

#include "plugins/scene/mesh/Mesh.h"
#include "plugins/scene/pylon/AntennaPlaces.h"

namespace vlt::scene {

/// Adds antennas with their brackets. If a mast has more than MaxDetailed antennas, they are drawn
/// without connectors and with fewer corners.
///
/// @param cylinders  whether antennas other than dishes are cylinders instead of panels
void addAntennas(Meshes &meshes, const std::vector<AntennaPlace> &places, bool cylinders);

inline constexpr std::size_t MaxDetailed = 64;

} // namespace vlt::scene
