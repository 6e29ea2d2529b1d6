#pragma once

#include "plugins/scene/parametric/LinkObject.h"

#include <osg/StateSet>
#include <osg/ref_ptr>

namespace vlt::scene {

/// With how much of a drawable the background mixes.
enum class Opacity { Opaque, Translucent };

/// How lines of sight are drawn; colours come from the vertices. They are drawn after zones that
/// let look through, and seen at their full strength within them.
///
/// Bands turn to the viewer on the graphics card: a vertex carries the way from the middle line to
/// itself (x, y, z) and on which side of it it lies (-1 or 1) as its texture coordinates, and the
/// direction of the link as its normal. Without shaders they lie level.
osg::ref_ptr<osg::StateSet> makeLineState(const LinkLook &look, Opacity opacity);

/// How the hairlines in tubes and bands are drawn, which are seen from where those are too thin.
osg::ref_ptr<osg::StateSet> makeHairlineState();

/// How Fresnel ellipsoids are drawn, which all have one colour.
osg::ref_ptr<osg::StateSet> makeEllipsoidState(Opacity opacity);

} // namespace vlt::scene
