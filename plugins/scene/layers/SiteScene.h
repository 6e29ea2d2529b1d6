#pragma once

#include "plugins/scene/layers/PylonTiles.h"

#include <osg/Group>

namespace vlt::scene {

/// The sites of a layer as a group: metres around the middle of the sites, x east, y north, z up.
///
/// Its descriptions tell what it holds: "centre=X Y" (in the table's system), "srs=...",
/// "sites=N", "unplaced=N", and "cut" where the table has more sites than MaxSites.
/// PylonTiles.h tells how sites are drawn.
osg::ref_ptr<osg::Group> buildSiteScene(SiteRecords records, const std::string &title,
                                        TileContent content);

} // namespace vlt::scene
