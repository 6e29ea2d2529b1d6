#pragma once

#include "contract/QueryOptions.h"

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

namespace vlt::linkpath {

/// What the terrain leaves of a link's path.
enum class Verdict {
    Unknown,    ///< no terrain, no frequency or no antenna height
    Clear,      ///< the wanted share of the first Fresnel zone is free all along
    Marginal,   ///< the line of sight is free, the wanted share is not
    Obstructed, ///< the terrain cuts the line of sight
};

/// What a link lacks that cannot be judged.
enum class Lack {
    Nothing,
    Place, ///< of an end
    Terrain,
    HeightA, ///< of the antenna at end A, or at both
    HeightB,
    Frequency,
    TerrainOfPath, ///< a part of the path's
    Length,        ///< the ends stand in one place
};

/// Red, green, blue of a verdict, for lines and marks; told apart by those who do not see red or
/// green.
std::array<std::uint8_t, 3> verdictColor(Verdict verdict);

/// What clearance is asked for; the values are those of a first run.
struct ClearanceRule
{
    /// Of the first zone's radius, to be free; 0 .. 1 and more.
    double share = contract::query::FresnelSharePercent.firstRun / 100.0;
    /// Of the earth's radius.
    double kFactor = contract::query::KFactorNumber.firstRun;
};

/// A point of the ground under a link.
struct ProfilePoint
{
    double distanceM = 0; ///< from end A along the ground
    double terrainM = 0;  ///< height above sea level
};

/// The point where the least share of the first Fresnel zone is free.
struct WorstPoint
{
    double distanceM = 0;  ///< from end A
    double terrainM = 0;   ///< height of the terrain above sea level
    double lineM = 0;      ///< height of the straight line between the antennas above sea level
    double bulgeM = 0;     ///< how much the earth's curvature raises the terrain
    double radiusM = 0;    ///< of the first Fresnel zone
    double clearanceM = 0; ///< line - terrain - bulge; negative: the line is cut
    double freeShare() const { return clearanceM / radiusM; }
};

/// A judged link.
struct Clearance
{
    Verdict verdict = Verdict::Unknown;
    Lack lack = Lack::Place;         ///< why there is no verdict; Nothing where there is one
    std::optional<WorstPoint> worst; ///< of the part of the path whose terrain is known
};

/// Judges a path by its profile.
///
/// @param profile        from end A to end B, both ends included; two points at least
/// @param antennaAM      height of the antenna's centre at end A above sea level
/// @param antennaBM      the same at end B
/// @param frequencyMHz   positive
Clearance judgeProfile(const std::vector<ProfilePoint> &profile, double antennaAM, double antennaBM,
                       double frequencyMHz, const ClearanceRule &rule);

} // namespace vlt::linkpath
