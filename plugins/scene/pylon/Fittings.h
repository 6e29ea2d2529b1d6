#pragma once

#include "plugins/scene/mesh/Solids.h"
#include "plugins/scene/pylon/MastDesign.h"

namespace vlt::scene {

/// The ends of a straight fitting on a mast.
struct Span
{
    osg::Vec3d bottom;
    osg::Vec3d top;
};

/// Adds a ladder with its rails along a span and its rungs parallel to `right`.
void addLadder(Mesh &metal, const Span &span, const osg::Vec3d &right);

/// Adds feeder cables, side by side along a span.
void addCables(Mesh &matt, const Span &span, const osg::Vec3d &right, int count);

/// Adds a closed rail along a regular polygon with the given circumradius.
void addRail(Mesh &metal, double radius, int corners, double heightM, double railRadius,
             const Color &color);

/// Adds the floor, toe board and railing of a platform, and the brackets below it.
///
/// @param bodyRadius  distance in metres from the axis to the start of the brackets
void addPlatform(Mesh &metal, const MastDesign &mast, double deckM, double bodyRadius);

/// Adds a lightning rod whose tip is RodM above `foot`.
void addRod(Mesh &metal, const osg::Vec3d &foot);

inline constexpr double RodM = 1.2;
inline constexpr double FoundationDepthM = 0.5; ///< below the foot, for ground that is not level

/// Colour of a mast at a height: alternating red and white for tall masts, else `plain`.
Color bandColor(const MastDesign &mast, double heightM, const Color &plain);

/// Heights at which bandColor() changes, including 0 and the top.
std::vector<double> bandHeights(const MastDesign &mast);

} // namespace vlt::scene
