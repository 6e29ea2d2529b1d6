#pragma once

#include <optional>
#include <string_view>

namespace vlt::contract {

/// The number in a "no data" value that the user typed for a terrain or an image. The number may
/// have a decimal point or comma, blanks around it and a plus sign. Nothing for any other text,
/// including the empty one.
std::optional<double> noDataNumber(std::string_view text);

/// Whether a typed "no data" value is valid: a number, or blank for no such value.
bool isNoDataText(std::string_view text);

} // namespace vlt::contract
