#pragma once

#include "plugins/scene/layers/SiteStyle.h"
#include "plugins/scene/reading/LayerFile.h"
#include "plugins/scene/reading/SceneFrame.h"

#include <osg/Vec3d>

#include <cstdint>
#include <string>
#include <vector>

namespace vlt::scene {

/// Most sites that a layer shows; further rows are left out.
inline constexpr std::size_t MaxSites = 1000000;

inline constexpr double AboveAntennasM = 2; ///< what a mast rises above its highest antenna

struct SiteRecord
{
    std::string name; ///< UTF-8
    osg::Vec3d foot;  ///< metres in the local frame
    std::uint32_t design = 0;
};

/// Pylons at their places. Equal pylons are one design.
struct PylonRecords
{
    std::vector<SiteRecord> sites;
    std::vector<PylonDesign> designs;
};

/// The sites of a layer.
struct SiteRecords : PylonRecords
{
    SceneFrame frame;
    std::size_t unplaced = 0; ///< rows without a position
    bool isCut = false;       ///< the table holds more than MaxSites
};

/// Reads all sites of a table.
///
/// A mast is a little higher than its highest antenna. A transmitter without height has the usual
/// one, one without tilt none, one without azimuth radiates all around; one with neither height nor
/// azimuth does not exist. The ground is at the terrain height, or at 0 where it is unknown.
///
/// @param table  with the absolute path of a file
/// @throws BadLayer  the table cannot be opened, or none of its rows has a position
SiteRecords readSiteRecords(const contract::ConnectionString &table, const LayerFile &layer,
                            const SiteStyle &style);

} // namespace vlt::scene
