#pragma once

#include "coverage/RasterBlocks.h"

namespace vlt::coverage {

/// Two percentiles of all values of a band, exact to seven digits: the least values that at least
/// the given shares of all do not exceed. The band is read twice.
///
/// @param low,high  in per cent, 0 .. 100
/// @param progress  may be empty
/// @return          nothing if there are no values or `progress` stopped the function
std::optional<ValueRange> percentilesOf(RasterBlocks &blocks, double low, double high,
                                        const Progress &progress);

} // namespace vlt::coverage
