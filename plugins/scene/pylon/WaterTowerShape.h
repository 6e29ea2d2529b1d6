#pragma once

#include "plugins/scene/mesh/Solids.h"
#include "plugins/scene/pylon/MastDesign.h"

namespace vlt::scene {

/// Profiles of a water tower: its outer wall from the ground to the gallery, and its roof from the
/// gallery to the top.
Profile waterTowerWall(const MastDesign &mast);
Profile waterTowerRoof(const MastDesign &mast);

/// Height in metres at which the vertical wall of the tank begins.
double waterTowerTankFoot(const MastDesign &mast);

/// Distance in metres from the axis to the outer wall or roof at a height.
double waterTowerRadius(const MastDesign &mast, double heightM);

} // namespace vlt::scene
