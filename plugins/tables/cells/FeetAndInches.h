#pragma once

#include <optional>
#include <string_view>

namespace vlt::driver {

/// The feet in a length of feet and inches: 120' 6", 145'-6", 145 ft 6 in. Nothing for any other
/// text, also for feet alone.
std::optional<double> parseFeetAndInches(std::string_view text);

} // namespace vlt::driver
