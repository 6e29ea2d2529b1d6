#pragma once

namespace vlt::geodata {

/// Bounds in degrees; `west` is greater than `east` if the area crosses the 180th meridian.
struct SrsBounds
{
    double west = 0;
    double south = 0;
    double east = 0;
    double north = 0;

    friend bool operator==(const SrsBounds &, const SrsBounds &) = default;
};

/// Whether a position lies in an area or at most `margin` degrees outside it.
bool isInside(const SrsBounds &area, double longitude, double latitude, double margin = 0);

/// Whether an area contains all of another one.
bool holds(const SrsBounds &area, const SrsBounds &other);

} // namespace vlt::geodata
