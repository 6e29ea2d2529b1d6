#pragma once

#include "linkpath/PathProfiler.h"
#include "plugins/scene/layers/LinkLayerStyle.h"
#include "plugins/scene/layers/LinkRows.h"
#include "plugins/scene/layers/SiteRecords.h"
#include "plugins/scene/parametric/LinkObject.h"

#include <map>
#include <vector>

namespace vlt::scene {

/// Height of an antenna of which the table tells none, metres above ground.
inline constexpr double UsualLinkAntennaM = 30;

/// Ends of links that are no further apart stand on one pylon: tables may tell where on it each
/// antenna hangs.
inline constexpr double SamePylonM = 5;

/// What is drawn of a layer of links.
struct LinkRecords
{
    PylonRecords pylons; ///< one for each place, with a dish for each link that ends there
    std::vector<LinkObject> links;
    std::map<linkpath::Verdict, std::size_t> verdicts; ///< empty where nobody asked for them
    std::size_t groundless = 0;                        ///< pylons without terrain under them
};

/// Puts links onto the terrain, or onto height 0 where it is not known.
///
/// A pylon stands in the middle of the ends that it carries and is a little higher than its highest
/// dish. Lines of sight run between the places of the ends themselves; dishes look along them.
///
/// @param profiler  of the links' system
LinkRecords placeLinks(const LinkRows &links, const LinkLayerStyle &style,
                       const linkpath::PathProfiler &profiler);

} // namespace vlt::scene
