#pragma once

#include "plugins/scene/pylon/MastDesign.h"

namespace vlt::scene {

/// Horizontal section of a mast at a height: a circle, or a regular polygon with a face towards
/// north.
struct MastSection
{
    int sides = 0;        ///< 0: a circle
    double inradiusM = 0; ///< distance from the axis to the middle of a face

    /// Distance in metres from the axis to the outline in the direction of an azimuth.
    double reach(double azimuthDeg) const;

    /// Distance in metres from the axis to a corner.
    double circumradius() const;
};

/// Section of a mast without its platforms. The width of the design is, for
/// - tubular masts: 4/5 of the platform's diameter. The diameter of the tube is 0.3 of the width at
///   the foot and 0.16 at the top (slim: 0.16 and 0.1)
/// - lattice towers: the width of a face at the foot; at the top it is 0.4 of that
/// - guyed masts: 10/3 of the width of a face
/// - rooftops: a third of the side of the roof
/// - wooden poles: seven times the diameter of the foot
/// - water towers: the diameter of the shaft; that of the tank is three times the width.
MastSection mastSection(const MastDesign &mast, double heightM);

/// Distance in metres from the axis to the corners of the platform whose floor is at a height.
double platformRadius(const MastDesign &mast, double deckM);

/// Number of corners of a platform.
int platformCorners(PylonType type);

inline constexpr double RailingM = 1.1;

} // namespace vlt::scene
