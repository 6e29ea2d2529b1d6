#pragma once

#include "platform/Result.h"
#include "snapshot/ViewPoint.h"

#include <QImage>
#include <QSize>

#include <osg/Node>

namespace vlt::snapshot {

/// Least and largest width and height of a picture, in pixels.
inline constexpr int LeastSide = 16;
inline constexpr int LargestSide = 8192;

/// Draws a scene off screen. Levels of detail are chosen by their true distances.
///
/// @param scene  x east, y north, z up, metres
/// @param size   pixels, LeastSide .. LargestSide either way
/// @par Errors   MESS_SNAP_NO_DISPLAY without an X server that draws, MESS_SNAP_NO_ROOM for a
///               picture that it has no room for; those of findViewPoint().
Result<QImage> renderSnapshot(osg::Node &scene, const QSize &size, SceneView view);

} // namespace vlt::snapshot
