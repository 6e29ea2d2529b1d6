#include "linkpath/Fresnel.h"

#include <cmath>

namespace vlt::linkpath {

double wavelengthM(double frequencyMHz)
{
    constexpr double HzPerMHz = 1e6;
    return LightSpeed / (frequencyMHz * HzPerMHz);
}

FresnelEllipsoid fresnelEllipsoid(int zone, double frequencyMHz, double distanceM)
{
    const double detourM = zone * wavelengthM(frequencyMHz) / 2;
    // sqrt(a^2 - (D/2)^2) without the cancellation of the nearly equal squares
    return {(distanceM + detourM) / 2, std::sqrt(detourM * (2 * distanceM + detourM)) / 2};
}

double fresnelRadiusM(int zone, double frequencyMHz, double d1M, double d2M)
{
    return std::sqrt(zone * wavelengthM(frequencyMHz) * d1M * d2M / (d1M + d2M));
}

double earthBulgeM(double d1M, double d2M, double kFactor)
{
    return d1M * d2M / (2 * kFactor * EarthRadiusM);
}

} // namespace vlt::linkpath
