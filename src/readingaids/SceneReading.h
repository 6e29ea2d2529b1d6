#pragma once

#include "readingaids/GroundPlace.h"
#include "readingaids/Legend.h"

#include <functional>
#include <optional>

namespace vlt::readingaids {

/// What the aids of a view state about its scene. Places are in the frame of the scene; the
/// functions are for the thread of the interface, and may be empty.
struct SceneReading
{
    /// Direction of true north at a place, in degrees clockwise from the y axis.
    std::function<double(double x, double y)> northDeg;
    Legend legend;

    /// A place on the ground; nothing where it is not known on the earth.
    std::function<std::optional<GroundPlace>(double x, double y)> placeAt = {};
};

} // namespace vlt::readingaids
