#pragma once

#include "contract/QueryOptions.h"

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

namespace vlt::linkpath {

/// The class of a path's clearance.
enum class ClearanceStatus {
    Unknown,    ///< the terrain, the frequency or an antenna height is missing
    Clear,      ///< the required share of the first Fresnel zone is free along the whole path
    Marginal,   ///< the line of sight is free, the required share is not
    Obstructed, ///< the terrain obstructs the line of sight
};

/// The reason why the clearance of a link is unknown.
enum class Lack {
    Nothing,       ///< the clearance is known
    Position,      ///< the position of an end is missing
    Terrain,       ///< the terrain is missing
    HeightA,       ///< the antenna height at end A is missing, or both are
    HeightB,       ///< the antenna height at end B is missing
    Frequency,     ///< the frequency is missing or not positive
    TerrainOfPath, ///< the terrain of a part of the path is missing
    Length,        ///< the ends have the same position
};

/// Red, green and blue of a class of clearance, for lines and marks. Readers who cannot distinguish
/// red from green can distinguish these colours.
std::array<std::uint8_t, 3> clearanceColor(ClearanceStatus status);

/// The required clearance; the defaults are those of a first run.
struct ClearanceRule
{
    /// Share of the first zone's radius that has to be free; 0 .. 1 and more.
    double share = contract::query::FresnelSharePercent.firstRun / 100.0;
    /// Factor of the earth's radius.
    double kFactor = contract::query::KFactorNumber.firstRun;
};

/// A point of the ground under a link.
struct ProfilePoint
{
    double distanceM = 0; ///< from end A along the ground
    double terrainM = 0;  ///< height above sea level
};

/// The point of a path where the free share of the first Fresnel zone has its minimum.
struct WorstPoint
{
    double distanceM = 0;  ///< from end A
    double terrainM = 0;   ///< height of the terrain above sea level
    double lineM = 0;      ///< height of the straight line between the antennas above sea level
    double bulgeM = 0;     ///< rise of the terrain by the earth's curvature
    double radiusM = 0;    ///< radius of the first Fresnel zone
    double clearanceM = 0; ///< line - terrain - bulge; negative: the line is obstructed
    double freeShare() const { return clearanceM / radiusM; }
};

/// The clearance of a link.
struct Clearance
{
    ClearanceStatus status = ClearanceStatus::Unknown;
    Lack lack = Lack::Position;      ///< the reason for ClearanceStatus::Unknown, else Nothing
    std::optional<WorstPoint> worst; ///< within the part of the path whose terrain is known
};

/// Computes the clearance of a path from its profile.
///
/// @param profile        from end A to end B, both ends included; at least two points
/// @param antennaAM      height of the antenna's centre at end A above sea level
/// @param antennaBM      the same at end B
/// @param frequencyMHz   positive
Clearance checkProfile(const std::vector<ProfilePoint> &profile, double antennaAM, double antennaBM,
                       double frequencyMHz, const ClearanceRule &rule);

} // namespace vlt::linkpath
