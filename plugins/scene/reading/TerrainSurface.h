#pragma once

#include "linkpath/PathProfiler.h"
#include "plugins/scene/reading/LocalFrame.h"

#include <osg/BoundingBox>
#include <osg/Node>

namespace vlt::scene {

/// Maximum number of points of a surface along each side.
inline constexpr unsigned MaxSurfacePoints = 300;

/// The surface of the terrain under a scene, in earth colours by height, with hill shading. Level
/// ground that is not above sea level is water. Where the terrain has no height, there is a hole.
///
/// @param extent  of the scene in the frame; the surface is slightly larger
/// @return        null if there is no terrain
osg::ref_ptr<osg::Node> buildTerrainSurface(const linkpath::PathProfiler &profiler,
                                            const LocalFrame &frame,
                                            const osg::BoundingBoxd &extent);

} // namespace vlt::scene
