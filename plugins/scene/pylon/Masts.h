#pragma once

#include "plugins/scene/mesh/Mesh.h"
#include "plugins/scene/pylon/MastDesign.h"

namespace vlt::scene {

/// Adds a mast with its platforms, in its precise representation: foot at the origin, z up.
void addMast(Meshes &meshes, const MastDesign &mast);

/// The mast as a plain body, for far away. @return height of its top, metres
double addPlainMast(Meshes &meshes, const MastDesign &mast);

// The families of masts.
void addTubeMast(Meshes &meshes, const MastDesign &mast);
void addWoodenPole(Meshes &meshes, const MastDesign &mast);
void addLatticeMast(Meshes &meshes, const MastDesign &mast);
void addGuyedMast(Meshes &meshes, const MastDesign &mast);
void addRooftop(Meshes &meshes, const MastDesign &mast);
void addWaterTower(Meshes &meshes, const MastDesign &mast);

} // namespace vlt::scene
