#pragma once

#include "plugins/scene/layers/PylonTiles.h"

#include <osg/Group>

namespace vlt::scene {

/// The sites of a layer as a group, in metres around the centre of the sites: x east, y north, z
/// up. PylonTiles.h describes how sites are drawn.
///
/// Its descriptions are "centre=X Y" (in the table's system), "srs=...", "sites=N", "unplaced=N",
/// and "cut" if the table has more sites than MaxSites.
osg::ref_ptr<osg::Group> buildSiteScene(SiteRecords records, const std::string &title,
                                        TileContent content);

} // namespace vlt::scene
