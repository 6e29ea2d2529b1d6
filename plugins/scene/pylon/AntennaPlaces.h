#pragma once

#include "plugins/scene/pylon/MastDesign.h"

#include <osg/Vec3d>

#include <vector>

namespace vlt::scene {

/// Where an antenna hangs. Metres, in the pylon's own frame.
struct AntennaPlace
{
    AntennaKind kind = AntennaKind::Usual;
    osg::Vec3d centre;
    double azimuthDeg = 0; ///< that the antenna faces
    double tiltDeg = 0;
    AntennaSize size = {};
    Color mark;

    osg::Vec3d pipe;       ///< axis of the upright pipe behind the antenna; z is not used
    double pipeBottom = 0; ///< z
    double pipeTop = 0;    ///< z
    bool standsOnRoof = false;
    std::vector<osg::Vec3d> holds; ///< points of the mast from which arms reach the pipe, level
};

/// A place for each transmitter, in their order. The centre is at the transmitter's height exactly;
/// antennas that would stand in each other's place move sidewards. Empty at a scale of 0.
std::vector<AntennaPlace> placeAntennas(const PylonDesign &pylon, const MastDesign &mast);

} // namespace vlt::scene
