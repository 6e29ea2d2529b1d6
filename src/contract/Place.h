#pragma once

namespace vlt::contract {

/// A position in a coordinate system, x before y.
struct Place
{
    double x = 0; ///< east, longitude
    double y = 0;

    bool operator==(const Place &) const = default;
};

} // namespace vlt::contract
