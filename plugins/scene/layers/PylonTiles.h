#pragma once

#include "layers/SiteRecords.h"

#include <osg/Node>

namespace vlt::scene {

/// Most sites of one tile of a scene.
inline constexpr std::size_t SitesPerTile = 64;

/// The pylons of a layer with the names of their sites, one site at least.
///
/// Sites lie in tiles of neighbours. A tile's content is made when it is first drawn: whole pylons
/// up to the realistic distance; masts as lines and coarse sectors, few drawables for all, up to
/// the symbolic distance; beyond it one dot for each site. Names are seen from where there is room
/// between the sites to read them.
osg::ref_ptr<osg::Node> buildPylonTiles(PylonRecords records);

} // namespace vlt::scene
