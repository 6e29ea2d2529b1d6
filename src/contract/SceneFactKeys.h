#pragma once

/// Facts in the descriptions of a scene, "key=value" or a word: the scene readers write them, the
/// wizard and the command line read them.
namespace vlt::contract::facts {

inline constexpr char Centre[] = "centre"; ///< the scene's origin, "X Y" in System
inline constexpr char System[] = "srs";
inline constexpr char Cut[] = "cut"; ///< a word: the table has more rows than are shown

// numbers
inline constexpr char Sites[] = "sites";
inline constexpr char Links[] = "links";
inline constexpr char Pylons[] = "pylons";
inline constexpr char Unplaced[] = "unplaced"; ///< sites or links without a position
inline constexpr char Buildings[] = "buildings";
inline constexpr char LeftOut[] = "leftOut"; ///< buildings that are not shown

} // namespace vlt::contract::facts
