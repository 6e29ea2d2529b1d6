#pragma once

#include "plugins/scene/mesh/Solids.h"
#include "plugins/scene/pylon/MastDesign.h"

namespace vlt::scene {

/// Two points between which something straight is fixed to a mast.
struct Span
{
    osg::Vec3d bottom;
    osg::Vec3d top;
};

/// A ladder whose rails run along a span; its rungs are parallel to `right`.
void addLadder(Mesh &metal, const Span &span, const osg::Vec3d &right);

/// Feeder cables, side by side along a span.
void addCables(Mesh &matt, const Span &span, const osg::Vec3d &right, int count);

/// A closed rail around a regular polygon of the given circumradius.
void addRail(Mesh &metal, double radius, int corners, double heightM, double railRadius,
             const Color &color);

/// Floor, toe board and railing of a platform; brackets below it reach the body of the mast.
///
/// @param bodyRadius  where the brackets start, from the axis
void addPlatform(Mesh &metal, const MastDesign &mast, double deckM, double bodyRadius);

/// A lightning rod on top of something. Its tip is RodM above.
void addRod(Mesh &metal, const osg::Vec3d &foot);

inline constexpr double RodM = 1.2;
inline constexpr double FoundationDepthM = 0.5; ///< below the foot, for ground that is not level

/// Alternating red and white from this height on, grey below.
Color bandColor(const MastDesign &mast, double heightM, const Color &plain);

/// Heights at which bandColor() changes, with 0 and the top.
std::vector<double> bandHeights(const MastDesign &mast);

} // namespace vlt::scene
