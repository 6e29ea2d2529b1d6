#pragma once

#include <osg/Node>

/// Maximum distance of the camera in metres at which a whole scene is drawn in full detail: the
/// smallest far limit of its levels of detail. For buildings with images up to some distance and
/// plain colours beyond it, the distance of the images. Levels by size on the screen do not count.
/// Infinity without levels of detail.
double visibleDistanceM(osg::Node &scene);
