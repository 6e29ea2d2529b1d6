#pragma once

namespace vlt::linkpath {

/// Speed of light in vacuum, metres per second (exact by the definition of the metre).
inline constexpr double LightSpeed = 299792458;

/// Mean radius of the earth in metres (IUGG).
inline constexpr double EarthRadiusM = 6371008.8;

/// Wavelength in metres of a frequency in MHz.
double wavelengthM(double frequencyMHz);

/// An ellipsoid of revolution whose foci are the two antennas: its semi-axes in metres.
struct FresnelEllipsoid
{
    double semiMajorM = 0; ///< along the link, from its centre to a point behind an antenna
    double semiMinorM = 0; ///< across the link, at its centre
};

/// The boundary of Fresnel zone n = `zone` (1 or more) of a link of D = `distanceM` metres: all
/// points for which the path through the point is n half wavelengths longer than the straight path
/// (Rec. ITU-R P.526, "Fresnel ellipsoids"). a = (D + n lambda/2)/2, b = sqrt(a^2 - (D/2)^2).
FresnelEllipsoid fresnelEllipsoid(int zone, double frequencyMHz, double distanceM);

/// Radius of a Fresnel zone at `d1M` metres from one antenna and `d2M` metres from the other:
/// sqrt(n lambda d1 d2/(d1 + d2)) (Rec. ITU-R P.526).
double fresnelRadiusM(int zone, double frequencyMHz, double d1M, double d2M);

/// Height of the earth's surface above the chord between two points, at `d1M` and `d2M` metres from
/// them, for an earth radius multiplied by k: d1 d2/(2 k R).
double earthBulgeM(double d1M, double d2M, double kFactor);

} // namespace vlt::linkpath
