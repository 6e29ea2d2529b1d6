#pragma once

#include "landscape/Ground.h"

#include <osg/Node>

namespace vlt::landscape {

/// The ground as a node in the frame of its scene.
osg::ref_ptr<osg::Node> makeGroundNode(const std::vector<GroundLevel> &levels);

/// Hands the picture of a level of the ground to the renderer when it is drawn, without being
/// visible.
osg::ref_ptr<osg::Node> makeUpload(const osg::Node &level);

/// A level ground with a metric grid, for a scene without a terrain: as wide as the ground around
/// the square, paler lines at steps of 1, 2 or 5 times a power of ten metres.
osg::ref_ptr<osg::Node> makePlaneNode(const Square &finest, double heightM);

} // namespace vlt::landscape
