#pragma once

#include "plugins/scene/parametric/LinkObject.h"

#include <osg/StateSet>
#include <osg/ref_ptr>

namespace vlt::scene {

/// Whether the background is visible through a drawable.
enum class Opacity { Opaque, Translucent };

/// The state of lines of sight; their colours are those of the vertices. They are drawn after
/// translucent zones, so that a zone does not change the colour of a line within it.
///
/// The graphics card rotates bands to face the viewer. For this purpose the texture coordinates of
/// a vertex are the vector from the centre line to the vertex (x, y, z) and its side (-1 or 1), and
/// its normal is the direction of the link. Without shaders bands are horizontal.
osg::ref_ptr<osg::StateSet> makeLineState(const LinkAppearance &appearance, Opacity opacity);

/// The state of the hairlines within tubes and bands, which are visible at distances at which tubes
/// and bands are too thin.
osg::ref_ptr<osg::StateSet> makeHairlineState();

/// The state of Fresnel ellipsoids, which all have the same colour.
osg::ref_ptr<osg::StateSet> makeEllipsoidState(Opacity opacity);

} // namespace vlt::scene
