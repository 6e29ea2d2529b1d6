#pragma once

#include "plugins/scene/layers/LinkRecords.h"
#include "plugins/scene/layers/LinkRows.h"
#include "plugins/scene/layers/PylonTiles.h"

#include <osg/Group>

namespace vlt::scene {

/// The links of a layer as a group: metres around the middle of their ends, x east, y north, z up.
///
/// Its descriptions tell what it holds: "centre=X Y" (in the table's system), "srs=...",
/// "links=N", "pylons=N", "unplaced=N" (links), where links were judged "clear=N", "marginal=N",
/// "obstructed=N" and "unknown=N", and "cut" where the table has more links than MaxLinks.
/// PylonTiles.h and LinkFactory.h tell how pylons and links are drawn. The earth's curvature is
/// not: a link that only it obstructs runs above the ground here.
osg::ref_ptr<osg::Group> buildLinkLayerScene(const LinkRows &rows, LinkRecords records,
                                             const LinkLook &look, const std::string &title,
                                             TileContent content);

} // namespace vlt::scene
