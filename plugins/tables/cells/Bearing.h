#pragma once

#include <optional>
#include <string_view>

namespace vlt::driver {

/// The direction in a text of surveyors, in degrees from north: N120E is 120, and up to 90 degrees
/// the letters name the quadrant, so that N30W is 330 and S45E is 135. Blanks and a degree sign may
/// stand beside the number. Nothing for any other text.
std::optional<double> parseBearing(std::string_view text);

/// The direction of one of the 16 points of the compass, in degrees: N is 0, SSW is 202.5. The
/// letters are English; O is left out, because it is east or west.
std::optional<double> parseCompassPoint(std::string_view text);

} // namespace vlt::driver
