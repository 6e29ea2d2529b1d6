#pragma once

#include "plugins/scene/buildings/Town.h"

#include <osg/Group>

#include <functional>
#include <memory>

namespace vlt::scene {

/// Makes the node of some buildings with images; vertices are relative to `origin`.
using TexturedMaker = std::function<osg::ref_ptr<osg::Node>(
    std::span<const std::uint32_t> buildings, const osg::Vec3d &origin)>;

/// How a town is drawn.
struct TownLook
{
    double tileSizeM = 250;
    double extrudedVisibilityM = 2000; ///< from the eye to the middle of a tile, less its radius
    double texturedVisibilityM = 0;
    double skirtM = 0;
    TexturedMaker makeTextured; ///< empty: no images
};

/// Where a town has more points, its tiles are made when they are drawn for the first time.
inline constexpr std::size_t MaxPlacesAtOnce = 3'000'000;

/// From where on buildings are simpler: a pixel is as wide as so many metres or more. Those larger
/// than some pixels stay as they were.
struct CoarseLevel
{
    double pixelM;
    double largestM; ///< width or depth
};
inline constexpr CoarseLevel Boxes{4, 40};
inline constexpr CoarseLevel Dots{7, 28};
inline constexpr double LargestBoxAmongDotsM = 70;

/// The buildings of a town in tiles, each with its levels of detail: images up to their distance,
/// extruded buildings up to theirs, nothing beyond. Where pixels are coarse, thousands of buildings
/// are one drawable.
///
/// @throws Stopped  by `progress`
osg::ref_ptr<osg::Group> buildTown(const std::shared_ptr<const Town> &town, const TownLook &look,
                                   const Progress &progress);

} // namespace vlt::scene
