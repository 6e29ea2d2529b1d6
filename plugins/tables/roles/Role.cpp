#include "plugins/tables/roles/Role.h"

#include <algorithm>
#include <array>

namespace vlt::driver {

namespace {

constexpr std::array<std::string_view, RoleCount> Names = {"",
                                                           "siteId",
                                                           "siteName",
                                                           "longitude",
                                                           "latitude",
                                                           "easting",
                                                           "northing",
                                                           "x",
                                                           "y",
                                                           "pair",
                                                           "utmZone",
                                                           "groundHeight",
                                                           "antennaHeight",
                                                           "seaLevelHeight",
                                                           "sectorId",
                                                           "azimuth",
                                                           "mechanicalTilt",
                                                           "electricalTilt",
                                                           "tilt",
                                                           "beamWidth",
                                                           "band",
                                                           "frequency",
                                                           "technology",
                                                           "operator",
                                                           "offsetX",
                                                           "offsetY",
                                                           "linkName",
                                                           "length",
                                                           "diameter",
                                                           "repeater"};

} // namespace

std::string_view roleName(Role role)
{
    return Names[static_cast<std::size_t>(role)];
}

Role roleOfName(std::string_view name)
{
    const auto found = std::find(Names.begin(), Names.end(), name);
    return found == Names.end() ? Role::None : static_cast<Role>(found - Names.begin());
}

} // namespace vlt::driver
