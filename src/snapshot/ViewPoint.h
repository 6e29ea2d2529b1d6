#pragma once

#include "platform/Result.h"

#include <osg/Node>
#include <osg/Vec3d>

namespace vlt::snapshot {

enum class SceneView {
    All,      ///< everything, from the south-west, a little above
    Symbolic, ///< sectors of the middle site, from where sites are drawn as symbols
    Precise   ///< mast and antennas of the middle site, from where they are drawn as they are
};

/// Where a picture is taken from; up is the z axis.
struct ViewPoint
{
    osg::Vec3d eye;
    osg::Vec3d target;
    double fieldOfViewDeg = 30; ///< vertical
};

/// Places the eye for a view. Levels of detail keep their distances: where these forbid to go near,
/// the field of view gets narrower instead.
///
/// @param aspect  width of the picture / its height
/// @par Errors    MESS_SNAP_EMPTY for a scene in which nothing is drawn; MESS_SNAP_TOO_FAR where
///                everything can only be in view from where nothing is drawn any more;
///                MESS_SNAP_NO_SITES and MESS_SNAP_NO_LEVEL for a view of a representation that the
///                scene lacks.
Result<ViewPoint> findViewPoint(osg::Node &scene, SceneView view, double aspect);

} // namespace vlt::snapshot
