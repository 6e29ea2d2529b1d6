#pragma once

#include "mesh/Mesh.h"
#include "pylon/AntennaPlaces.h"

namespace vlt::scene {

/// Adds antennas with their brackets. Where one mast carries more than MostDetailed of them, they
/// are drawn without connectors and with fewer corners.
void addAntennas(Meshes &meshes, const std::vector<AntennaPlace> &places, bool cylinders);

inline constexpr std::size_t MostDetailed = 64;

} // namespace vlt::scene
