#pragma once

#include "plugins/scene/buildings/CityModel.h"

#include <ogr_spatialref.h>

namespace vlt::scene {

/// The terrain of a document.
struct GroundSource
{
    std::string file;   ///< as in the document; empty: no terrain
    std::string path;   ///< absolute; empty if there is no such local file
    std::string noData; ///< as typed: a "no data" value in addition to the file's own
};

/// The ground height of each building: the mean terrain height under the vertices of its first ring
/// that have one. Buildings without such a vertex get the minimum of all others, or 0 if there is
/// no ground height at all; a notice reports this.
///
/// @param srs       system of the footprints; null: that of the terrain
/// @return          parallel to footprints.buildings, metres above sea level
/// @throws Stopped  `progress` stopped the function
std::vector<float> groundUnder(const Footprints &footprints, const OGRSpatialReference *srs,
                               const GroundSource &source, Notices &notices,
                               const Progress &progress);

} // namespace vlt::scene
