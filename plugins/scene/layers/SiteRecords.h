#pragma once

#include "plugins/scene/layers/SiteStyle.h"
#include "plugins/scene/reading/LayerFile.h"
#include "plugins/scene/reading/SceneFrame.h"

#include <osg/Vec3d>

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace vlt::scene {

/// Maximum number of sites that a layer shows; further rows are left out.
inline constexpr std::size_t MaxSites = 1000000;

inline constexpr double AboveAntennasM = 2; ///< height of a mast above its highest antenna

struct SiteRecord
{
    std::string name; ///< UTF-8
    osg::Vec3d foot;  ///< metres in the local frame
    std::uint32_t design = 0;
    float northDeg = 0; ///< true north, clockwise from the frame's y axis; azimuths count from it
    std::uint32_t row = 0; ///< of the table, its first one; 0 for pylons at the ends of links
};

/// Pylons with their positions. Equal pylons share a design.
struct PylonRecords
{
    std::vector<SiteRecord> sites;
    std::vector<PylonDesign> designs;
};

/// Height of the lowest foot, 0 without pylons.
double lowestFootM(const PylonRecords &pylons);

/// The sites of a layer.
struct SiteRecords : PylonRecords
{
    SceneFrame frame;
    std::size_t unplaced = 0; ///< rows without a position
    bool isCut = false;       ///< the table has more sites than MaxSites
    std::string terrain;      ///< path of the terrain on which sites stand; may be empty
    std::map<int, Color>
        transmitters; ///< colours by the numbers of the transmitters that sites have
};

/// Reads all sites of a table.
///
/// A mast is slightly higher than its highest antenna. A transmitter without a height has the
/// default height, one without a tilt has tilt 0, one without an azimuth radiates in all
/// directions. One with neither height nor azimuth is ignored, and so is one whose height or
/// azimuth cannot be used. The foot is at the terrain height,
/// on `terrain` where the table has none, or at 0 where both are unknown.
///
/// @param table      with the absolute path of a file
/// @param terrain    path; may be empty
/// @throws BadLayer  the table cannot be opened or has no row with a position
SiteRecords readSiteRecords(const contract::ConnectionString &table, const LayerFile &layer,
                            const SiteStyle &style, const std::string &terrain);

} // namespace vlt::scene
