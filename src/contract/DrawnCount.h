#pragma once

namespace vlt::contract {

/// A named value of the nodes below the levels of detail of a city: the number of buildings that
/// the node draws. The parts of a building count once.
inline constexpr char BuildingsOfNode[] = "vlt.buildings";

} // namespace vlt::contract
