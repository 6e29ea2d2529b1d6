#pragma once

#include "plugins/scene/layers/SiteRecords.h"

#include <osg/Node>

namespace vlt::scene {

/// Most sites of one tile of a scene.
inline constexpr std::size_t SitesPerTile = 64;

/// When the content of tiles is made. Programs that write a scene elsewhere find only what is
/// there; for them pylons and names of up to MostSitesAtOnce sites are made at once, and masts and
/// coarse sectors of up to MostCoarseSitesAtOnce.
enum class TileContent { WhenDrawn, AtOnce };

inline constexpr std::size_t MostSitesAtOnce = 2000;
inline constexpr std::size_t MostCoarseSitesAtOnce = 50000; ///< about 200 MiB

/// The pylons of a layer with the names of their sites, one site at least.
///
/// Sites lie in tiles of neighbours. A tile holds whole pylons up to the realistic distance; masts
/// as lines and coarse sectors, few drawables for all, up to the symbolic distance; beyond it one
/// dot for each site. Names are seen from where there is room between the sites to read them.
osg::ref_ptr<osg::Node> buildPylonTiles(PylonRecords records, TileContent content);

} // namespace vlt::scene
