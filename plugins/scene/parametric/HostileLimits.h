#pragma once

#include "contract/TransmitterRanges.h"

/// Ranges of the numbers that scenes accept in queries and tables. They are wider than the ranges
/// for users (contract/QueryOptions.h), because a query may come from another version or program,
/// or may be written by hand. They are limited, so that no number in a damaged or hostile query
/// makes coordinates overflow or a mesh too large.
namespace vlt::scene::limits {

using contract::Range;

inline constexpr Range PlaceM{-1e9, 1e9}; ///< x, y and z
using contract::AntennaHeightM;
inline constexpr Range MastHeightM{0.1, AntennaHeightM.maximum};
inline constexpr Range PylonWidthM{0.01, 1000};
inline constexpr Range SectorSizeM{0, 1e8}; ///< radius and height
inline constexpr Range SectorSpacingM{0, 1e9};
inline constexpr Range DistanceM{0, 1e9}; ///< maximum distance at which something is drawn
inline constexpr Range AntennaScalePercent{0, 1000};
inline constexpr Range AntennaLengthM{0, 30}; ///< or diameter of a dish, before scaling
using contract::AzimuthDeg;
using contract::BeamWidthDeg;
using contract::TiltDeg;

} // namespace vlt::scene::limits
