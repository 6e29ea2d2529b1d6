#pragma once

#include "readingaids/Legend.h"

#include <functional>

namespace vlt::readingaids {

/// What the aids of a view state about its scene. Places are in the frame of the scene; the
/// functions are for the thread of the interface, and may be empty.
struct SceneReading
{
    /// Direction of true north at a place, in degrees clockwise from the y axis.
    std::function<double(double x, double y)> northDeg;
    Legend legend;
};

} // namespace vlt::readingaids
