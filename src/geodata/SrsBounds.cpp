#include "geodata/SrsBounds.h"

namespace vlt::geodata {

namespace {

constexpr double FullTurn = 360;

/// The distance of a meridian to the east of an area's western edge, 0 .. 360 degrees.
double eastOf(double west, double longitude)
{
    double turned = longitude - west;
    while (turned < 0)
        turned += FullTurn;
    while (turned > FullTurn)
        turned -= FullTurn;
    return turned;
}

double width(const SrsBounds &area)
{
    return area.east < area.west ? area.east + FullTurn - area.west : area.east - area.west;
}

} // namespace

bool isInside(const SrsBounds &area, double longitude, double latitude, double margin)
{
    const bool isBetween = latitude >= area.south - margin && latitude <= area.north + margin;
    return isBetween && longitude >= -FullTurn && longitude <= FullTurn &&
           eastOf(area.west - margin, longitude) <= width(area) + 2 * margin;
}

bool holds(const SrsBounds &area, const SrsBounds &other)
{
    return isInside(area, other.west, other.south) && isInside(area, other.east, other.north) &&
           eastOf(area.west, other.west) + width(other) <= width(area);
}

} // namespace vlt::geodata
