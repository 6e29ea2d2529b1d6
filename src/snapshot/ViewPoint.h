#pragma once

#include "platform/Result.h"

#include <osg/Node>
#include <osg/Vec3d>

namespace vlt::snapshot {

enum class SceneView {
    All,      ///< everything, from the south-west, slightly above
    North,    ///< everything, towards true north
    Top,      ///< everything, from above, true north up
    Symbolic, ///< sectors of the middle site, at a distance at which sites are drawn as symbols
    Precise   ///< mast and antennas of the middle site, at a distance at which they are drawn
};

/// The eye and the target of a picture.
struct ViewPoint
{
    osg::Vec3d eye;
    osg::Vec3d target;
    double fieldOfViewDeg = 30; ///< vertical
    osg::Vec3d up = {0, 0, 1};
};

/// Determines the eye for a view. The distances of levels of detail are respected: if the eye must
/// not come nearer, the field of view gets narrower instead.
///
/// @param aspect  width of the picture / its height
/// @par Errors    MESS_SNAP_EMPTY for a scene in which nothing is drawn; MESS_SNAP_TOO_FAR if
///                nothing is drawn any more at the distance at which everything is in view;
///                MESS_SNAP_NO_SITES and MESS_SNAP_NO_LEVEL if the scene lacks the representation
///                of the view.
Result<ViewPoint> findViewPoint(osg::Node &scene, SceneView view, double aspect);

} // namespace vlt::snapshot
