#pragma once

#include "snapshot/ViewPoint.h"

#include <QtGlobal>

#include <optional>

namespace vlt::snapshot {

/// Number of buildings in a scene of buildings, which its reader tells; nothing for other scenes.
std::optional<qint64> buildingCount(const osg::Node &scene);

/// Places the eye for a picture of a town, whose buildings are drawn up to a distance from the eye.
/// Where they do not reach far enough for the usual field of view, it gets wider and the eye comes
/// nearer; of a town that is too large for that, the middle is seen.
///
/// @param aspect  width of the picture / its height
/// @par Errors    MESS_SNAP_EMPTY, MESS_SNAP_TOO_FAR as findViewPoint()
Result<ViewPoint> viewOfTown(osg::Node &scene, qint64 buildings, double aspect);

} // namespace vlt::snapshot
