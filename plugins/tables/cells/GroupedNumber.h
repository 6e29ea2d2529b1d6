#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace vlt::driver {

/// A number whose thousands are grouped, at the start of a text.
struct GroupedNumber
{
    double number = 0;
    std::size_t size = 0; ///< in bytes
    /// Whether the groups may also be the values of a list: "700,800,900", but not "1,800.5".
    bool mayBeList = false;
};

/// The number with grouped thousands at the start of a text: 652 000,5, 652,000.5, 652.000,5,
/// 1'234.5, 6 862 000. Groups of three digits are separated by blanks (also no-break and thin
/// ones), apostrophes, points or commas, the same ones throughout. Nothing for a number without
/// groups, and for 652,000 and 652.000, whose mark may also be the decimal mark.
std::optional<GroupedNumber> leadingGroupedNumber(std::string_view text);

/// The number with grouped thousands that is the whole text.
std::optional<double> parseGroupedNumber(std::string_view text);

} // namespace vlt::driver
