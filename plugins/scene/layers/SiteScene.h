#pragma once

#include "layers/SiteRecords.h"

#include <osg/Group>

namespace vlt::scene {

/// Most sites of one tile of a scene.
inline constexpr std::size_t SitesPerTile = 64;

/// The sites of a layer as a group: metres around the middle of the sites, x east, y north, z up.
///
/// Its descriptions tell what it holds: "centre=X Y" (in the table's system), "srs=...",
/// "sites=N", "unplaced=N", and "cut" where the table has more sites than MaxSites.
///
/// Sites lie in tiles of neighbours. A tile's content is made when it is first drawn: whole pylons
/// up to the realistic distance; masts as lines and coarse sectors, few drawables for all, up to
/// the symbolic distance; beyond it one dot for each site. Names are seen from where there is room
/// between the sites to read them.
osg::ref_ptr<osg::Group> buildSiteScene(SiteRecords records, const std::string &title);

} // namespace vlt::scene
