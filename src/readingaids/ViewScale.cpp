#include "readingaids/ViewScale.h"

#include "language/Numbers.h"
#include "language/VltLanguageManager.h"

#include <cmath>
#include <numbers>

namespace vlt::readingaids {

namespace {

constexpr double DegreesPerRadian = 180 / std::numbers::pi;

Vector between(const Vector &from, const Vector &to)
{
    return {to[0] - from[0], to[1] - from[1], to[2] - from[2]};
}

} // namespace

double metresPerPixel(const ViewCamera &camera, double heightPx)
{
    const Vector way = between(camera.eye, camera.target);
    const double distanceM = std::hypot(way[0], way[1], way[2]);
    return 2 * distanceM * std::tan(camera.fieldOfViewDeg / 2 / DegreesPerRadian) / heightPx;
}

double bearingDeg(const ViewCamera &camera, double northDeg)
{
    constexpr double SteepShare = 0.01; // the direction of a view from above is that of rounding
    Vector heading = between(camera.eye, camera.target);
    if (std::hypot(heading[0], heading[1]) < SteepShare * std::abs(heading[2]))
        heading = camera.up;
    return std::remainder(std::atan2(heading[0], heading[1]) * DegreesPerRadian - northDeg, 360);
}

double roundNumberUpTo(double limit)
{
    constexpr double Tolerance = 1 + 1e-9; // 1000 / 10 must not become 50
    const double power = std::pow(10, std::floor(std::log10(limit * Tolerance)));
    for (const double factor : {5.0, 2.0}) {
        if (factor * power <= limit * Tolerance)
            return factor * power;
    }
    return power;
}

ScaleLength scaleLength(double metresPerPx, double maxPx)
{
    constexpr double MinM = 0.01;
    constexpr double MaxM = 1e7;
    constexpr double MetresPerKm = 1000;
    const double longestM = metresPerPx * maxPx;
    if (!(longestM >= MinM && longestM <= MaxM))
        return {};
    ScaleLength length;
    length.lengthM = roundNumberUpTo(longestM);
    length.lengthPx = length.lengthM / metresPerPx;
    const bool inKm = length.lengthM >= MetresPerKm;
    length.text =
        (inKm ? dico_label("MESS_SCALE_KM", "%1 km") : dico_label("MESS_SCALE_M", "%1 m"))
            .arg(language::roundNumber(inKm ? length.lengthM / MetresPerKm : length.lengthM));
    return length;
}

} // namespace vlt::readingaids
