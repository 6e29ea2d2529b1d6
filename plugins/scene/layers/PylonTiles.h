#pragma once

#include "plugins/scene/layers/NameOverlay.h"
#include "plugins/scene/layers/SiteRecords.h"

#include <osg/Node>

namespace vlt::scene {

/// Maximum number of sites in a tile of a scene.
inline constexpr std::size_t SitesPerTile = 64;

/// The time at which the content of tiles is made. Programs that convert a scene use only content
/// that has been made. AtOnce is for them: pylons and names of up to MaxSitesAtOnce sites, masts
/// and coarse sectors of up to MaxCoarseSitesAtOnce sites are made at once. WhenDrawn is for
/// programs that only draw the scene: distant sites have symbols.
enum class TileContent { WhenDrawn, AtOnce };

inline constexpr std::size_t MaxSitesAtOnce = 2000;
inline constexpr std::size_t MaxCoarseSitesAtOnce = 50000; ///< about 200 MiB
inline constexpr std::size_t MaxSymbols = 50000;           ///< about 50 MiB, and 50 ms a picture

/// Height above a pylon's foot below which all parts of the mast are, in metres.
double mastTopM(const PylonDesign &design);

/// The pylons of a layer, at least one, with the names of their sites.
///
/// The sites are divided into tiles of neighbours. A tile shows whole pylons up to the realistic
/// distance; masts as lines and coarse sectors, in few drawables, up to the symbolic distance; and
/// a dot for each site at larger distances: a symbol (SiteSymbols.h) if the scene is only drawn and
/// has no more than MaxSymbols sites. Names are visible at distances at which there is room
/// for them between the sites; in a scene with symbols NameOverlay.h shows them.
///
/// In a scene that is only drawn, the parts of sites with a row have the numbers of
/// contract/SceneObjects.h.
///
/// @param links  names of links at their middles, which are shown with those of the sites in a
///               scene with symbols
osg::ref_ptr<osg::Node> buildPylonTiles(PylonRecords records, TileContent content,
                                        std::vector<NamedPlace> links = {});

} // namespace vlt::scene
