#pragma once

#include <osg/Node>

namespace vlt::landscape {

/// The background of a scene: a sky that is paler towards the horizon, and the haze of the ground
/// below it. It fills the picture for every camera whose horizon is level.
osg::ref_ptr<osg::Node> makeSky();

} // namespace vlt::landscape
