#pragma once

#include "city/FootprintReader.h"

namespace vlt::city {

/// The terrain of a document.
struct GroundSource
{
    std::string file;   ///< as in the document; empty: no terrain
    std::string path;   ///< absolute; empty if there is no such local file
    std::string noData; ///< as typed: a "no data" value in addition to the file's own
};

/// The ground height of each building by the rule: from the terrain heights under the vertices of
/// its outline that have one, or from the field of its feature. Buildings without a height in their
/// field get the mean terrain height, those without any the minimum of all others, or 0 if there is
/// no ground height at all. These substitutes are counted, by feature.
///
/// @param srs       system of the footprints; null: that of the terrain
/// @param notices   receives a notice if the terrain is missing or cannot be used
/// @return          parallel to footprints.buildings, metres above sea level
/// @throws Stopped  `progress` stopped the function
std::vector<float> groundUnder(const Footprints &footprints, const OGRSpatialReference *srs,
                               const GroundSource &source, contract::BaseRule rule,
                               contract::Substitutes &substitutes, Notices &notices,
                               const Progress &progress);

} // namespace vlt::city
