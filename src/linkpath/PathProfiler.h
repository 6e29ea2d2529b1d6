#pragma once

#include "linkpath/Clearance.h"
#include "linkpath/TerrainRaster.h"

#include <memory>
#include <optional>

namespace vlt::linkpath {

/// One end of a link.
struct LinkEnd
{
    double x = 0; ///< east or longitude, in the links' system
    double y = 0;
    std::optional<double> heightM; ///< of the antenna's centre above ground
};

/// Cuts profiles out of a terrain and judges links by them. Not for two threads at once.
class PathProfiler
{
public:
    /// @param terrain  may be null: then lengths are known, verdicts are not
    /// @param srs      system of the ends; null: that of the terrain, or metres without one
    PathProfiler(std::shared_ptr<TerrainRaster> terrain, const OGRSpatialReference *srs);
    ~PathProfiler();

    /// Whether there is a way from the links' system to the terrain's.
    bool hasTerrain() const;

    /// Distance of the ends on the earth's surface (geodesic) in metres; nothing where their system
    /// does not tell.
    std::optional<double> lengthM(const LinkEnd &a, const LinkEnd &b) const;

    /// Azimuth of b seen from a, degrees from true north, clockwise.
    std::optional<double> azimuthDeg(const LinkEnd &a, const LinkEnd &b) const;

    /// Terrain height under a point of the links' system.
    std::optional<double> groundM(double x, double y) const;

    /// Judges a link; Unknown where a height, the frequency (not positive) or a part of the terrain
    /// is missing. A cut line of sight is Obstructed even where another part is missing.
    Clearance judge(const LinkEnd &a, const LinkEnd &b, double frequencyMHz,
                    const ClearanceRule &rule) const;

private:
    class Parts;
    std::unique_ptr<Parts> m_parts;
};

} // namespace vlt::linkpath
