#pragma once

#include <osg/Node>

/// Distance of the eye, in metres, within which everything of a scene is drawn at its best: the
/// least end of its levels of detail. Where buildings have images up to some distance and plain
/// colours beyond it, that of the images. Levels by size on the screen do not count. Infinity where
/// there are none.
double visibleDistanceM(osg::Node &scene);
