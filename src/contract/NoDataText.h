#pragma once

#include <optional>
#include <string_view>

namespace vlt::contract {

/// The number in a typed value of no data, of a terrain or an image: with a decimal point or comma,
/// blanks around it and a plus sign before it; nothing for other texts, the empty one among them.
std::optional<double> noDataNumber(std::string_view text);

/// Whether a typed value of no data can be used: it is blank, which means none, or a number.
bool isNoDataText(std::string_view text);

} // namespace vlt::contract
