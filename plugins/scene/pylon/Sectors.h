#pragma once

#include "plugins/scene/mesh/Mesh.h"
#include "plugins/scene/parametric/PylonObject.h"

#include <vector>

namespace vlt::scene {

/// One sector as a wedge: a slice of a flat disc about the mast's axis.
struct Sector
{
    double azimuthDeg = 0; ///< of its middle
    double beamWidthDeg = 0;
    double radiusM = 0;
    double bottomM = 0; ///< above the foot
    double heightM = 0; ///< thickness
    Color color;
};

/// The sectors of a pylon, one for each transmitter that is to be seen (radius, height and opacity
/// above 0), from the lowest antenna to the highest.
///
/// A wedge has its middle at the antenna's height, but never lies below the foot. Where it would
/// run into one that has its place already, or come closer to it than the sector spacing, it
/// is lifted above that one by the spacing. Tilt does not turn wedges: they are a plan of azimuths.
std::vector<Sector> stackSectors(const PylonDesign &pylon);

/// Adds a wedge and the lines along its edges. Neither takes part in lighting: faces have the
/// sector's colour, a shade darker on the sides, so that legends match.
///
/// @param foot  of the mast, in the frame of the meshes
/// @param arcStepDeg  longest piece of the arc: a wedge of 65 degrees has 70 vertices at 5 degrees
///     and 38 at 15
/// @param fill, edges  solids and lines, for the states of SceneMaterials
void addSector(Mesh &fill, Mesh &edges, const Sector &sector, const osg::Vec3d &foot,
               double arcStepDeg = 5);

} // namespace vlt::scene
