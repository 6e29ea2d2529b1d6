#pragma once

#include "picking/SceneObjects.h"

#include <osg/Matrixd>
#include <osg/Vec2d>
#include <osg/Vec3d>
#include <osgUtil/LineSegmentIntersector>

#include <limits>
#include <optional>

namespace vlt::picking {

/// A point of a view and what is visible there.
struct Sight
{
    osg::Vec2d at;         ///< in pixels, y upwards
    osg::Matrixd toWindow; ///< from the frame of the scene to pixels
    osg::Vec3d eye;
    double unitPx = 1; ///< pixels of the screen in a pixel of the interface

    /// Distance of the nearest surface, of the scene or of the ground; without one, endless.
    double surfaceM = std::numeric_limits<double>::infinity();

    /// The parts of the scene at the point, nearest first.
    osgUtil::LineSegmentIntersector::Intersections met;
};

/// The object at a point of a view; nothing beside all objects.
///
/// Solid parts come first, the nearest before others. Symbols, masts and lines of sight are thin on
/// the screen, so that a point within some pixels of them is enough; then the nearest one on the
/// screen counts. The inside of a Fresnel zone comes last. Objects behind a surface do not count.
std::optional<std::size_t> objectAt(const SceneObjects &objects, const Sight &sight);

} // namespace vlt::picking
