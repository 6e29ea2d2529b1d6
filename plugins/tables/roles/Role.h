#pragma once

#include <string_view>

namespace vlt::driver {

/// What a column of a table holds.
enum class Role {
    None,
    SiteId,
    SiteName,
    Longitude,
    Latitude,
    Easting,
    Northing,
    X,    ///< named by a bare x or the like: a longitude or an easting
    Y,    ///< a latitude or a northing
    Pair, ///< both coordinates in one cell
    UtmZone,
    GroundHeight,
    AntennaHeight,  ///< above ground
    SeaLevelHeight, ///< of an antenna
    SectorId,
    Azimuth,
    MechanicalTilt,
    ElectricalTilt,
    Tilt,      ///< not said which of both
    BeamWidth, ///< horizontal
    Band,
    Frequency,
    Technology,
    Operator,
    OffsetX,
    OffsetY,
    LinkName,
    Length,   ///< of a link
    Diameter, ///< of a dish
    Repeater,
};

constexpr int RoleCount = static_cast<int>(Role::Repeater) + 1;

/// The name of a role in the vocabulary and in mappings: siteId, antennaHeight; empty for None.
std::string_view roleName(Role role);

/// The role of that name; None for any other text.
Role roleOfName(std::string_view name);

} // namespace vlt::driver
