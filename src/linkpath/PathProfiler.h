#pragma once

#include "linkpath/Clearance.h"
#include "linkpath/TerrainRaster.h"

#include <memory>
#include <optional>
#include <vector>

namespace vlt::linkpath {

/// One end of a link.
struct LinkEnd
{
    double x = 0; ///< east or longitude, in the links' system
    double y = 0;
    std::optional<double> heightM; ///< height of the antenna's centre above ground
};

/// The ground under a link from end A to end B.
struct PathProfile
{
    double lengthM = 0;
    std::vector<ProfilePoint> points; ///< points of known height; level at 0 without a terrain
    bool hasTerrain = false;
    bool isWhole = true;            ///< false if the terrain does not cover the whole path
    std::optional<double> groundAM; ///< height of the ground at end A above sea level
    std::optional<double> groundBM; ///< the same at end B
};

/// Takes profiles from a terrain and computes the clearance of links. Not for two threads at once.
class PathProfiler
{
public:
    /// @param terrain  may be null: lengths are known then, clearances are not
    /// @param srs      system of the ends; null: that of the terrain, or metres without a terrain
    PathProfiler(std::shared_ptr<TerrainRaster> terrain, const OGRSpatialReference *srs);
    ~PathProfiler();

    /// Whether there is a terrain, and a transformation to its system from that of the links.
    bool hasTerrain() const;

    /// Distance of the ends on the earth's surface (geodesic) in metres; nothing if their positions
    /// cannot be transformed.
    std::optional<double> lengthM(const LinkEnd &a, const LinkEnd &b) const;

    /// Azimuth of b seen from a, degrees from true north, clockwise.
    std::optional<double> azimuthDeg(const LinkEnd &a, const LinkEnd &b) const;

    /// Terrain height under a point of the links' system.
    std::optional<double> groundM(double x, double y) const;

    /// The ground under a link; nothing if the positions of its ends cannot be transformed.
    std::optional<PathProfile> profile(const LinkEnd &a, const LinkEnd &b) const;

    /// Computes the clearance of a link. Its class is Unknown if a height, the frequency (also one
    /// that is not positive) or a part of the terrain is missing. If the known terrain obstructs
    /// the line of sight, it is Obstructed even if another part is missing.
    Clearance check(const LinkEnd &a, const LinkEnd &b, double frequencyMHz,
                    const ClearanceRule &rule) const;

private:
    class Parts;
    std::unique_ptr<Parts> m_parts;
};

} // namespace vlt::linkpath
