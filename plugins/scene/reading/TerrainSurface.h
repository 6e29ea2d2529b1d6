#pragma once

#include "linkpath/PathProfiler.h"
#include "plugins/scene/reading/LocalFrame.h"

#include <osg/BoundingBox>
#include <osg/Node>

namespace vlt::scene {

/// Most points of a surface along either side.
inline constexpr unsigned MostSurfacePoints = 300;

/// The terrain's surface under a scene, in colours of earth that go by height, shaded as on maps;
/// what is level and not above the sea is water. Where the terrain has no height there is a hole.
///
/// @param extent  of the scene in the frame; the surface goes a little beyond it
/// @return  null where there is no terrain at all
osg::ref_ptr<osg::Node> buildTerrainSurface(const linkpath::PathProfiler &profiler,
                                            const LocalFrame &frame,
                                            const osg::BoundingBoxd &extent);

} // namespace vlt::scene
