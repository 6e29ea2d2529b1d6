#pragma once

#include "contract/BuildingHeights.h"

#include <optional>
#include <string_view>

namespace vlt::city {

/// A height as a person reads it in the text of a field.
struct ReadHeight
{
    double number = 0;                        ///< in metres or levels if `unit` says so
    std::optional<contract::HeightUnit> unit; ///< that the text names: Metres (also for feet, which
                                              ///< are converted) or Levels; nothing: none
    bool isApproximate = false;               ///< "~10", a range, a list

    bool operator==(const ReadHeight &) const = default;
};

/// Reads "12.5", "12,5 m", "1 234,5", "39' 6\"", "~10", "3 étages", "R+3" and the like, in UTF-8
/// and independently of the locale. A range is its mean, a list its greatest number. Nothing for a
/// text without a height, such as "N/A", and for numbers that are not finite.
std::optional<ReadHeight> readHeight(std::string_view text);

} // namespace vlt::city
