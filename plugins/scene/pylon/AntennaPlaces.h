#pragma once

#include "plugins/scene/pylon/MastDesign.h"

#include <osg/Vec3d>

#include <vector>

namespace vlt::scene {

/// The position of an antenna on a pylon, in metres in the pylon's own frame.
struct AntennaPlace
{
    AntennaKind kind = AntennaKind::Default;
    osg::Vec3d centre;
    double azimuthDeg = 0; ///< direction that the antenna faces
    double tiltDeg = 0;
    AntennaSize size = {};
    Color mark;

    osg::Vec3d pipe;       ///< axis of the vertical pipe behind the antenna; z is not used
    double pipeBottom = 0; ///< z
    double pipeTop = 0;    ///< z
    bool standsOnRoof = false;
    std::vector<osg::Vec3d> holds; ///< points of the mast where the arms to the pipe begin
};

/// The positions of the antennas, in the order of the transmitters. The height of the centre is
/// exactly the transmitter's; antennas that would overlap are moved sideways. There are none at a
/// scale of 0.
std::vector<AntennaPlace> placeAntennas(const PylonDesign &pylon, const MastDesign &mast);

} // namespace vlt::scene
