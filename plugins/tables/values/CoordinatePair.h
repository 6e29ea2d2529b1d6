#pragma once

#include "contract/TableTexts.h"

#include <optional>
#include <string_view>

namespace vlt::driver {

/// Both coordinates of a position, in degrees.
struct CoordinatePair
{
    double x = 0;
    double y = 0;
    bool inParts = false;                       ///< in degrees, minutes and seconds
    std::optional<contract::TableTextId> fault; ///< reason why there is no position
};

/// Reads both coordinates from one cell: "48.85,2.35" or "48,85;2,35" (latitude first),
/// 49°11'23.10"N,16°32'13.38"E, POINT(2.27 48.85) (longitude first).
CoordinatePair readCoordinatePair(std::string_view text);

} // namespace vlt::driver
