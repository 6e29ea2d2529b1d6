#pragma once

#include "plugins/scene/mesh/Mesh.h"
#include "plugins/scene/parametric/PylonObject.h"

#include <vector>

namespace vlt::scene {

/// A sector as a wedge: a slice of a flat disc about the mast's axis.
struct Sector
{
    double azimuthDeg = 0; ///< of its centre
    double beamWidthDeg = 0;
    double radiusM = 0;
    double bottomM = 0; ///< above the foot
    double heightM = 0; ///< thickness
    Color color;
};

/// Whether two sectors cover a common direction.
bool doOverlap(const Sector &one, const Sector &other);

/// The sectors of a pylon, one for each visible transmitter (radius, height and opacity above 0),
/// in ascending order of their bottoms.
///
/// The centre of a wedge is at the antenna's height, but no part is below the foot. If it would
/// overlap a wedge that has been placed before, or be closer to it than the sector spacing, it is
/// moved up to the spacing above that one. Wedges are not tilted, because they show azimuths.
std::vector<Sector> stackSectors(const PylonDesign &pylon);

/// Adds a wedge and the lines along its edges. They have no lighting: faces have the sector's
/// colour, slightly darker on the sides, so that they match legends.
///
/// @param fill, edges  receive solids and lines, for the states of SceneMaterials
/// @param foot         foot of the mast, in the frame of the meshes
void addSector(Mesh &fill, Mesh &edges, const Sector &sector, const osg::Vec3d &foot);

/// Adds a wedge with half the vertices, for the states of makeEdgedState().
///
/// @param places  receives the place of each vertex on its face; null: nothing
void addCoarseSector(Mesh &fill, osg::Vec2Array *places, const Sector &sector,
                     const osg::Vec3d &foot);

} // namespace vlt::scene
