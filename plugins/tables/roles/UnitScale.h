#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace vlt::driver {

/// A power of ten before the unit in a column name: "Height (0.1m)", "Azimuth [1/10 deg]".
struct UnitScale
{
    std::size_t begin = 0; ///< bytes of the name before the number
    std::size_t end = 0;   ///< begin of the unit behind it
    std::string word;      ///< the number as a decimal fraction: "0.1"
};

/// The first number in a name that is such a power of ten. Whether a unit follows is not known.
std::optional<UnitScale> findUnitScale(std::string_view name);

/// The factor for a word of a name; nothing for a word that is no decimal fraction.
std::optional<double> factorOfScale(std::string_view word);

} // namespace vlt::driver
