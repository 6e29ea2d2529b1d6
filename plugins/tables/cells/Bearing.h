#pragma once

#include <optional>
#include <string_view>

namespace vlt::driver {

/// The direction in a text of surveyors, in degrees from north: N120E is 120, and up to 90 degrees
/// the letters name the quadrant, so that N30W is 330 and S45E is 135. Blanks and a degree sign may
/// stand beside the number. Nothing for any other text.
std::optional<double> parseBearing(std::string_view text);

} // namespace vlt::driver
