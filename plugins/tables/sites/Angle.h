#pragma once

#include "contract/TableTexts.h"

#include <optional>
#include <string_view>

namespace vlt::driver {

enum class Axis {
    X, ///< longitude or easting
    Y, ///< latitude or northing
};

/// An angle read from a text.
struct Angle
{
    double degrees = 0; ///< west and south negative
    int parts =
        0; ///< numbers that make it up: 1 decimal degrees, 2 degrees and minutes, 3 with seconds
    std::optional<contract::TableTextId> fault; ///< why there is none; empty when there is one
};

/// Reads decimal degrees or degrees, minutes and seconds in the usual spellings: 48.85, 48,85,
/// -3.37, 48.85 N, 48°51'24"N, 48 51 24.0 N, N48 51.4, 48d51m24s, 48:51:24. Minutes and seconds lie
/// below 60 and only the last number has a fraction. The hemisphere letter has to fit the axis; O
/// is refused, since it stands for west in French, Spanish and Italian and for east in German.
Angle readAngle(std::string_view text, Axis axis);

/// Degrees from parts in columns of their own; `hemisphere` N, S, E, W or empty.
Angle joinAngle(std::string_view degrees, std::string_view minutes, std::string_view seconds,
                std::string_view hemisphere, Axis axis);

} // namespace vlt::driver
