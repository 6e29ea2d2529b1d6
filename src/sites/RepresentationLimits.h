#pragma once

namespace vlt::sites {

/// An inclusive range of a value of the site representation.
struct Limits
{
    double least;
    double most;
};

inline constexpr Limits SectorHeightLimits{0.01, 1e8};
inline constexpr Limits SectorRadiusLimits{0.01, 1e8};
inline constexpr Limits SectorSpacingLimits{0, 1e9};
inline constexpr Limits TransparencyLimits{0, 100};
inline constexpr Limits DistanceLimits{0, 1000000000};
inline constexpr Limits PylonWidthLimits{0.1, 150};
inline constexpr Limits AntennaSizeLimits{0, 300};

} // namespace vlt::sites
