#pragma once

#include "plugins/scene/layers/LinkRecords.h"
#include "plugins/scene/layers/LinkRows.h"
#include "plugins/scene/layers/PylonTiles.h"

#include <osg/Group>

namespace vlt::scene {

/// The links of a layer as a group, in metres around the centre of their ends: x east, y north, z
/// up. PylonTiles.h and LinkFactory.h describe how pylons and links are drawn. The earth's
/// curvature is not drawn: a link that only the curvature obstructs is above the ground here.
///
/// Its descriptions are "centre=X Y" (in the table's system), "srs=...", "links=N", "pylons=N" and
/// "unplaced=N" (links); with clearances "clear=N", "marginal=N", "obstructed=N" and "unknown=N";
/// and "cut" if the table has more links than MaxLinks.
///
/// @param terrain  path of the terrain under the links; may be empty
osg::ref_ptr<osg::Group> buildLinkLayerScene(const LinkRows &rows, LinkRecords records,
                                             const LinkAppearance &appearance,
                                             const std::string &title, const std::string &terrain,
                                             TileContent content);

} // namespace vlt::scene
