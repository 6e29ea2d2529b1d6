#pragma once

#include "plugins/scene/pylon/MastDesign.h"

namespace vlt::scene {

/// Horizontal section of a mast at some height: round, or a regular polygon with a face towards
/// north.
struct MastSection
{
    int sides = 0;        ///< 0: round
    double inradiusM = 0; ///< from the axis to the middle of a face

    /// From the axis to the outline towards an azimuth, metres.
    double reach(double azimuthDeg) const;

    /// From the axis to a corner, metres.
    double circumradius() const;
};

/// The mast's own body without platforms. The width of the design is
/// - of tubular masts 4/5 of the platform's diameter; the tube narrows from 0.3 to 0.16 of the
/// width
///   (slim: 0.16 to 0.1)
/// - of lattice towers the face at the foot, which narrows to 0.4 of it
/// - of guyed masts 10/3 of the face
/// - of rooftops a third of the roof's length and breadth
/// - of wooden poles seven diameters of the foot
/// - of water towers the diameter of the shaft; that of the tank is three widths.
MastSection mastSection(const MastDesign &mast, double heightM);

/// From the axis to the corners of the platform whose floor is at a height, metres.
double platformRadius(const MastDesign &mast, double deckM);

/// Corners of a platform.
int platformCorners(PylonType type);

inline constexpr double RailingM = 1.1;

} // namespace vlt::scene
