#pragma once

/// Where a scene lies, as named values of its root node: the scene readers set them, the wizard and
/// the command line draw the ground by them.
namespace vlt::contract::place {

inline constexpr char System[] = "vlt.srs";      ///< text: WKT of the system of facts::Centre
inline constexpr char HeightM[] = "vlt.ground";  ///< number: the lowest foot, above sea level
inline constexpr char Terrain[] = "vlt.terrain"; ///< text: the path of the scene's own terrain
inline constexpr char NoData[] = "vlt.nodata";   ///< text: value of no data beside the file's own

} // namespace vlt::contract::place
