#pragma once

#include "plugins/tables/sites/CoordinateColumns.h"
#include "plugins/tables/sites/RoleCandidate.h"
#include "plugins/tables/sites/SampledTable.h"

#include <map>
#include <string>
#include <vector>

namespace vlt::driver {

/// The owner is the number of the transmitter in the name; -1 for none.
using SiteCandidate = RoleCandidate<int>;

/// The roles that the columns of a table of sites may have, apart from those of the position.
struct SiteCandidates
{
    std::vector<SiteCandidate> list;
    bool areNumbered = false; ///< the columns are numbered by transmitter
    /// The frequency bands in MHz of transmitters by their numbers, where columns are named by
    /// band: "900 Azimuth", "1800 Azimuth".
    std::map<int, int> bandsMHz = {};
    std::vector<int> unfitAzimuths = {}; ///< fields whose names say azimuths, but not their values
};

bool isRoleOfSite(Role role);
bool isRoleOfTransmitter(Role role);

/// @param places  the texts of the position in each sampled row, as placesOf() gives them
SiteCandidates findSiteCandidates(SampledTable &table, const PointFields &point,
                                  const std::vector<std::string> &places);

/// The texts of the position in each sampled row, together; empty for none.
std::vector<std::string> placesOf(const SampledTable &table, const PointFields &point);

} // namespace vlt::driver
