#pragma once

/// Which names a scene shows: a user value (text) of any node above the names. The programs set it,
/// the scene readers' nodes read it whenever they are drawn.
namespace vlt::contract::names {

inline constexpr char Shown[] = "vlt.names";

inline constexpr char None[] = "none";
inline constexpr char Some[] = "some"; ///< a number that suits the picture; the default
inline constexpr char All[] = "all";   ///< as many as have room

} // namespace vlt::contract::names
