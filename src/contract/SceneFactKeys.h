#pragma once

/// Facts in the descriptions of a scene, "key=value" or a word: the scene readers write them, the
/// wizard and the command line read them.
namespace vlt::contract::facts {

inline constexpr char Centre[] = "centre"; ///< the scene's origin, "X Y" in System
inline constexpr char System[] = "srs";
inline constexpr char Core[] = "core"; ///< extent of all but far outliers, "X Y X Y" in metres
inline constexpr char Cut[] = "cut";   ///< a word: the table has more rows than are shown

// numbers; those of buildings that are left out or drawn with a substitute have the keys of
// CityCounts.h
inline constexpr char Sites[] = "sites";
inline constexpr char Links[] = "links";
inline constexpr char Pylons[] = "pylons";
inline constexpr char Unplaced[] = "unplaced"; ///< sites or links without a position
inline constexpr char Buildings[] = "buildings";
inline constexpr char Features[] = "features"; ///< of the footprints' source
inline constexpr char LeftOut[] = "leftOut";   ///< features that are not shown as buildings
inline constexpr char Coincident[] = "coincident";

} // namespace vlt::contract::facts
