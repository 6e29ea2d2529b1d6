#pragma once

#include "contract/ChosenNumber.h"

/// Ranges of the values of a transmitter in tables, queries and scenes. A value outside of them is
/// a mistake.
namespace vlt::contract {

inline constexpr Range AntennaHeightM{0, 2000}; ///< above the ground
inline constexpr Range AzimuthDeg{-360, 360};
inline constexpr Range TiltDeg{-90, 90};
inline constexpr Range BeamWidthDeg{0, 360};

} // namespace vlt::contract
