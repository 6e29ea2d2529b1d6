#pragma once

#include "plugins/scene/buildings/Town.h"

#include <ogr_spatialref.h>

namespace vlt::scene {

/// The terrain that a document names.
struct GroundSource
{
    std::string file;   ///< as the document has it; empty: none
    std::string path;   ///< absolute; empty where there is no such local file
    std::string noData; ///< as typed: the value that has no height, besides the file's own
};

/// The height on which each building stands: the mean ground height under the points of its first
/// ring that have one. Buildings without such a point stand on the lowest ground that another one
/// has, and all at 0 where none has; a notice tells so.
///
/// @param srs  of the footprints; null: that of the terrain
/// @return     parallel to footprints.buildings, metres above sea level
/// @throws Stopped  by `progress`
std::vector<float> groundUnder(const Footprints &footprints, const OGRSpatialReference *srs,
                               const GroundSource &source, Notices &notices,
                               const Progress &progress);

} // namespace vlt::scene
