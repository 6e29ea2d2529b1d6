#pragma once

#include "plugins/scene/buildings/CityModel.h"

#include <osg/Group>

#include <functional>
#include <memory>

namespace vlt::scene {

/// Makes the node of some buildings with images. Vertices are relative to `origin`.
using TexturedMaker = std::function<osg::ref_ptr<osg::Node>(
    std::span<const std::uint32_t> buildings, const osg::Vec3d &origin)>;

/// The options for drawing a city.
struct CityStyle
{
    double tileSizeM = 250;
    double extrudedVisibilityM = 2000; ///< from the eye to the centre of a tile, less its radius
    double texturedVisibilityM = 0;
    double skirtM = 0;
    TexturedMaker makeTextured; ///< empty: no images
};

/// If a city has more vertices, its tiles are made when they are drawn for the first time.
inline constexpr std::size_t MaxPositionsAtOnce = 3'000'000;

/// A level with simpler buildings. Larger buildings are not simplified.
struct CoarseLevel
{
    double pixelM;   ///< minimum width of a pixel, in metres on the ground, for this level
    double largestM; ///< maximum width and depth of a simplified building
};
inline constexpr CoarseLevel Boxes{4, 40};
inline constexpr CoarseLevel Dots{7, 28};
inline constexpr double MaxBoxAmongDotsM = 70;

/// The buildings of a city in tiles with levels of detail: buildings with images up to their
/// maximum distance, extruded buildings up to theirs, nothing at larger distances. At low
/// resolutions, thousands of buildings are one drawable.
///
/// @throws Stopped  `progress` stopped the function
osg::ref_ptr<osg::Group> buildCity(const std::shared_ptr<const CityModel> &city,
                                   const CityStyle &look, const Progress &progress);

} // namespace vlt::scene
