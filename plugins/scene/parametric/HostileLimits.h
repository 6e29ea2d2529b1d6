#pragma once

#include "contract/ChosenNumber.h"

/// What the scene accepts of numbers in queries and tables. The ranges are wider than those that a
/// user may choose (contract/QueryOptions.h), so that a query of another version, of another
/// program or written by hand is drawn as well. They are bounded, so that no number of a damaged or
/// hostile one makes coordinates overflow or a mesh grow without end.
namespace vlt::scene::limits {

using contract::Range;

inline constexpr Range PlaceM{-1e9, 1e9}; ///< x, y and z
inline constexpr Range MastHeightM{0.1, 2000};
inline constexpr Range AntennaHeightM{0, MastHeightM.maximum}; ///< above the foot
inline constexpr Range PylonWidthM{0.01, 1000};
inline constexpr Range SectorSizeM{0, 1e8}; ///< radius and height
inline constexpr Range SectorSpacingM{0, 1e9};
inline constexpr Range DistanceM{0, 1e9}; ///< up to which something is drawn
inline constexpr Range AntennaScalePercent{0, 1000};
inline constexpr Range AntennaLengthM{0, 30}; ///< and diameter of a dish, before scaling
inline constexpr Range AzimuthDeg{-360, 360};
inline constexpr Range TiltDeg{-90, 90};
inline constexpr Range BeamWidthDeg{0, 360};

} // namespace vlt::scene::limits
