#pragma once

#include "plugins/scene/buildings/CityModel.h"

#include <osg/BoundingBox>

#include <memory>

namespace vlt::scene {

/// Maximum number of buildings in a tile; a tile with more is divided into quarters.
inline constexpr std::size_t MaxBuildingsPerTile = 2048;

/// Maximum number of tiles of a city; if there are more, the tile size is doubled until they fit.
inline constexpr std::size_t MaxTiles = 16384;

/// A tree of the buildings of a city: a branch has up to four neighbouring branches, or is a square
/// tile.
struct CityTree
{
    osg::BoundingBoxd bound;                         ///< of the buildings, with their heights
    std::span<const std::uint32_t> buildings;        ///< of the whole branch
    std::vector<std::unique_ptr<CityTree>> branches; ///< empty for a tile

    bool isTile() const { return branches.empty(); }
};

/// The tree of a city, and the array to which the spans of its branches refer.
struct CityTiles
{
    std::vector<std::uint32_t> order; ///< indices of buildings
    std::unique_ptr<CityTree> root;   ///< null if there are no buildings
};

/// Assigns each building to the tile that contains the centre of its first ring.
///
/// @param tileSizeM  positive
CityTiles growCityTree(const CityModel &city, double tileSizeM);

} // namespace vlt::scene
