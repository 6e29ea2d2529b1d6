#pragma once

#include "snapshot/Subject.h"
#include "snapshot/ViewPoint.h"

#include <QtGlobal>

#include <optional>

namespace vlt::snapshot {

/// Number of buildings in a scene, as stated by the reader of buildings; nothing for other scenes.
std::optional<qint64> buildingCount(const osg::Node &scene);

/// Determines the eye for a picture of a city, whose buildings are drawn only up to a distance from
/// the eye. If this distance is too small for the default field of view, the field gets wider and
/// the eye comes nearer; of a city that is too large for that, only the centre is shown. Buildings
/// far from all others do not count.
///
/// @param aspect  width of the picture / its height
/// @par Errors    MESS_SNAP_EMPTY and MESS_SNAP_TOO_FAR, as in findViewPoint()
Result<ViewPoint> viewOfCity(osg::Node &scene, qint64 buildings, double aspect, const Axes &axes);

} // namespace vlt::snapshot
