#pragma once

#include <QtGlobal>

#include <osg/Node>
#include <osg/Vec3d>

namespace vlt::snapshot {

/// Number of buildings of a city that are near enough to `eye` to be drawn; 0 for other scenes.
qint64 drawnBuildings(osg::Node &scene, const osg::Vec3d &eye);

} // namespace vlt::snapshot
