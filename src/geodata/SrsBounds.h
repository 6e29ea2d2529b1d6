#pragma once

namespace vlt::geodata {

/// Degrees; `west` is greater than `east` where the area lies across the 180th meridian.
struct SrsBounds
{
    double west = 0;
    double south = 0;
    double east = 0;
    double north = 0;

    friend bool operator==(const SrsBounds &, const SrsBounds &) = default;
};

/// Whether a place lies in an area or within a margin of so many degrees around it.
bool isInside(const SrsBounds &area, double longitude, double latitude, double margin = 0);

/// Whether an area holds the whole of another one.
bool holds(const SrsBounds &area, const SrsBounds &other);

} // namespace vlt::geodata
