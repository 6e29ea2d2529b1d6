#pragma once

#include "plugins/scene/mesh/Mesh.h"
#include "plugins/scene/pylon/MastDesign.h"

namespace vlt::scene {

/// Adds the legs, horizontals and crossed diagonals of a lattice between two heights, with the
/// sections of the mast and a frame at each of its frame heights.
void addLatticeColumn(Mesh &metal, const MastDesign &mast, double bottom, double top);

/// Radius of a leg, in metres.
double legRadius(const MastDesign &mast);

/// A corner of the mast's section at a height.
osg::Vec3d latticeCorner(const MastDesign &mast, int corner, double height);

} // namespace vlt::scene
