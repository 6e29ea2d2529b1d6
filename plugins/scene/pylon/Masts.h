#pragma once

#include "plugins/scene/mesh/Mesh.h"
#include "plugins/scene/pylon/MastDesign.h"

namespace vlt::scene {

/// Adds a mast with its platforms in the precise representation: its foot at the origin, z up.
void addMast(Meshes &meshes, const MastDesign &mast);

/// Adds a mast as a simple solid, for large distances. @return height of its top in metres
double addPlainMast(Meshes &meshes, const MastDesign &mast);

// The groups of types that addMast() draws.
void addTubeMast(Meshes &meshes, const MastDesign &mast);
void addWoodenPole(Meshes &meshes, const MastDesign &mast);
void addLatticeMast(Meshes &meshes, const MastDesign &mast);
void addGuyedMast(Meshes &meshes, const MastDesign &mast);
void addRooftop(Meshes &meshes, const MastDesign &mast);
void addWaterTower(Meshes &meshes, const MastDesign &mast);

} // namespace vlt::scene
