#pragma once

#include "contract/BuildingDocument.h"
#include "plugins/scene/buildings/CityModel.h"
#include "plugins/scene/buildings/TextureImages.h"

#include <osg/Node>

#include <cstdint>
#include <span>

namespace vlt::scene {

/// Makes the node of some buildings of a city with images. Vertices are relative to `origin`.
///
/// - Roofs: each roof shows the image whose height is nearest to that of the building.
/// - Walls: each is divided into horizontal bands. A band shows the image with the nearest height,
///   in the colours that the image has at a distance of `bufferM` outside the wall.
/// - Storeys: at the height of each image within the building there is a floor with this image,
///   and an outline in the edge colour.
///
/// All parts without an image have the city's colours. In these colours are also buildings with
/// holes or several parts, unless the document includes them, and, in the mode Storeys, buildings
/// without an image within their height. This mode also draws the outlines of whole buildings; the
/// others do so if the document requests edges. Several threads may build tiles at the same time.
///
/// @param buildings  indices into city.footprints.buildings
/// @return           null if nothing has to be drawn
osg::ref_ptr<osg::Node> buildTexturedTile(const CityModel &city,
                                          const contract::BuildingTextures &textures,
                                          TextureImages &images,
                                          std::span<const std::uint32_t> buildings,
                                          const osg::Vec3d &origin, double skirtM);

} // namespace vlt::scene
