#pragma once

#include "plugins/scene/mesh/Solids.h"
#include "plugins/scene/pylon/MastDesign.h"

namespace vlt::scene {

/// Outer wall of a water tower from the ground to the gallery, and its roof from the gallery to the
/// top.
Profile waterTowerWall(const MastDesign &mast);
Profile waterTowerRoof(const MastDesign &mast);

/// Height where the tank's upright wall begins.
double waterTowerTankFoot(const MastDesign &mast);

/// From the axis to the outer wall or roof at a height, metres.
double waterTowerRadius(const MastDesign &mast, double heightM);

} // namespace vlt::scene
