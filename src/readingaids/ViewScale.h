#pragma once

#include <QString>

#include <array>

namespace vlt::readingaids {

using Vector = std::array<double, 3>; ///< x east, y north, z up, metres

/// The camera of a perspective view.
struct ViewCamera
{
    Vector eye{};
    Vector target{};
    Vector up{};
    double fieldOfViewDeg = 0; ///< vertical
};

/// Distance in metres of two points at the target of a view that are a pixel apart, across the
/// direction of the view.
double metresPerPixel(const ViewCamera &camera, double heightPx);

/// The direction in which a view looks, in degrees clockwise from true north, -180 .. 180; for a
/// view from above that of its upper edge.
///
/// @param northDeg  true north, in degrees clockwise from the y axis
double bearingDeg(const ViewCamera &camera, double northDeg);

/// A length that readers know, as it is drawn.
struct ScaleLength
{
    double lengthM = 0; ///< 1, 2 or 5 times a power of ten; 0: none
    double lengthPx = 0;
    QString text; ///< in the chosen language

    bool operator==(const ScaleLength &) const = default;
};

/// The longest such length that fits into `maxPx`.
ScaleLength scaleLength(double metresPerPx, double maxPx);

/// The largest number of the form 1, 2 or 5 times a power of ten that is not above `limit`, which
/// is positive.
double roundNumberUpTo(double limit);

} // namespace vlt::readingaids
