#pragma once

namespace vlt::scene {

inline constexpr double RoundShare = 0.4; ///< radius of a round symbol / that of a petal
inline constexpr double LeastLevel = 0.6; ///< height of a symbol's disc / its width, at least

/// The measures of a symbol in pixels. The shader of SiteSymbols computes the same.
struct SymbolSize
{
    double radiusPx = 0;
    double mastPx = 0;
};

/// @param spacingPx  distance of the sites around
/// @param sectorPx   radius of a sector
/// @param upright    height of an upright metre / its length, as seen by the eye
/// @param unit       pictureUnit()
SymbolSize symbolSize(double spacingPx, double sectorPx, double upright, double unit);

} // namespace vlt::scene
