#pragma once

#include "linkpath/PathProfiler.h"
#include "plugins/scene/layers/LinkLayerStyle.h"
#include "plugins/scene/layers/LinkRows.h"
#include "plugins/scene/layers/SiteRecords.h"
#include "plugins/scene/parametric/LinkObject.h"

#include <map>
#include <vector>

namespace vlt::scene {

/// Default height of an antenna in metres above ground, if the table has none.
inline constexpr double DefaultLinkAntennaM = 30;

/// Ends of links within this distance share a pylon, because tables may have the positions of the
/// antennas rather than of the pylon.
inline constexpr double SamePylonM = 5;

/// The pylons and links of a layer, as they are drawn.
struct LinkRecords
{
    PylonRecords pylons; ///< one at each position, with a dish for each link that ends there
    std::vector<LinkObject> links;
    std::map<linkpath::ClearanceStatus, std::size_t>
        statuses;               ///< empty unless colours depend on them
    std::size_t groundless = 0; ///< pylons without terrain under them
};

/// Places links on the terrain, or at height 0 where its height is unknown.
///
/// A pylon is at the mean position of its ends and slightly higher than its highest dish. Lines of
/// sight connect the exact positions of the ends; dishes face along them.
///
/// @param profiler  with the system of the links
LinkRecords placeLinks(const LinkRows &links, const LinkLayerStyle &style,
                       const linkpath::PathProfiler &profiler);

/// Colour of the lines of a class of clearance; unknown ones have that of the appearance.
Color lineColor(linkpath::ClearanceStatus status, const LinkAppearance &appearance);

} // namespace vlt::scene
