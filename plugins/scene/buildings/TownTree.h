#pragma once

#include "plugins/scene/buildings/Town.h"

#include <osg/BoundingBox>

#include <memory>

namespace vlt::scene {

/// Most buildings of a tile: where more are in one, it is quartered.
inline constexpr std::size_t MaxBuildingsPerTile = 2048;

/// Most tiles of a town: where the size asks for more, it is doubled until there are fewer.
inline constexpr std::size_t MaxTiles = 16384;

/// The buildings of a town in square tiles, four neighbouring branches in one.
struct TownTree
{
    osg::BoundingBoxd bound;                         ///< of the buildings, with their heights
    std::span<const std::uint32_t> buildings;        ///< of the whole branch
    std::vector<std::unique_ptr<TownTree>> branches; ///< none: it is a tile

    bool isTile() const { return branches.empty(); }
};

/// A town's tree and the array that its branches look into.
struct TownTiles
{
    std::vector<std::uint32_t> order; ///< indices of buildings
    std::unique_ptr<TownTree> root;   ///< null where there are no buildings
};

/// Puts each building into the tile in which its first ring has its middle.
///
/// @param tileSizeM  positive
TownTiles growTownTree(const Town &town, double tileSizeM);

} // namespace vlt::scene
