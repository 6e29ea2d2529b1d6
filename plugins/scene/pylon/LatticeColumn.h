#pragma once

#include "plugins/scene/mesh/Mesh.h"
#include "plugins/scene/pylon/MastDesign.h"

namespace vlt::scene {

/// Legs, horizontals and crossed diagonals of a lattice between two heights, along the sections of
/// the mast, with a frame at each of the mast's frame heights.
void addLatticeColumn(Mesh &metal, const MastDesign &mast, double bottom, double top);

/// Radius of a leg, metres.
double legRadius(const MastDesign &mast);

/// A corner of the mast's section at a height.
osg::Vec3d latticeCorner(const MastDesign &mast, int corner, double height);

} // namespace vlt::scene
