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

/// The state of the dark casings of opaque lines and hairlines. All of them are drawn before the
/// first line, so that crossings of links stay clear. Near tubes and bands have outlines instead.
osg::ref_ptr<osg::StateSet> makeCasingState(const LinkAppearance &appearance);

/// The state of Fresnel ellipsoids, which all have the same colour.
osg::ref_ptr<osg::StateSet> makeEllipsoidState(Opacity opacity);

/// The state of strips, which stand for distant ellipsoids. The graphics card rotates a strip about
/// the ellipsoid's axis to face the viewer, and leaves it out where the eye is near.
///
/// The first texture coordinates of a vertex are the vector from the axis to the vertex and its
/// side (-1 or 1; 0 at a tip), the second ones are the ellipsoid's centre and the distance within
/// which the strip is left out. The normal is the vector from the centre to a tip.
osg::ref_ptr<osg::StateSet> makeStripState(Opacity opacity);

} // namespace vlt::scene
