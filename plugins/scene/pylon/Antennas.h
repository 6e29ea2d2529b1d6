#pragma once

#include "plugins/scene/mesh/Mesh.h"
#include "plugins/scene/pylon/AntennaPlaces.h"

namespace vlt::scene {

/// Adds antennas with their brackets. Where one mast carries more than MostDetailed of them, they
/// are drawn without connectors and with fewer corners.
///
/// @param cylinders  whether antennas that are no dishes are cylinders instead of panels
void addAntennas(Meshes &meshes, const std::vector<AntennaPlace> &places, bool cylinders);

inline constexpr std::size_t MostDetailed = 64;

} // namespace vlt::scene
