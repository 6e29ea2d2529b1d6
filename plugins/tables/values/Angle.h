#pragma once

#include "plugins/tables/values/Hemisphere.h"

#include <optional>
#include <string_view>

namespace vlt::driver {

/// An angle read from a text.
struct Angle
{
    double degrees = 0; ///< west and south negative
    /// Number of its parts: 1 for decimal degrees, 2 for degrees and minutes, 3 with seconds.
    int parts = 0;
    std::optional<contract::TableTextId> fault; ///< reason why there is no angle
};

/// How an angle of one number is written.
enum class AngleStyle {
    Plain,  ///< 451233.2 is no angle; with a hemisphere, 451233.2N is 45°12'33.2"
    Packed, ///< numbers hold degrees, minutes and seconds with two digits each
};

/// Reads decimal degrees or degrees, minutes and seconds in the common spellings: 48.85, 48,85,
/// -3.37, 48.85 N, 48°51'24"N, 48 51 24.0 N, N48 51.4, 48d51m24s, 48:51:24, 485124N, 48.85 Nord.
/// Minutes and seconds must be below 60, and only the last number may have a fraction. For the
/// hemisphere see readHemisphere().
Angle readAngle(std::string_view text, Axis axis, LetterO letterO = LetterO::Unknown,
                AngleStyle style = AngleStyle::Plain);

/// The angle from parts in separate columns; `hemisphere` may be empty.
Angle joinAngle(std::string_view degrees, std::string_view minutes, std::string_view seconds,
                std::string_view hemisphere, Axis axis, LetterO letterO = LetterO::Unknown);

} // namespace vlt::driver
