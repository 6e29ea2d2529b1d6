#pragma once

#include "contract/BuildingDocument.h"
#include "plugins/scene/buildings/TextureImages.h"
#include "plugins/scene/buildings/Town.h"

#include <osg/Node>

#include <cstdint>
#include <span>

namespace vlt::scene {

/// Some buildings of a town with the images laid on them. Vertices are relative to `origin`.
///
/// Roofs: each roof shows the image whose height is next to the building's. Walls: bands, each with
/// the image next in height, the colour that it has `bufferM` outside the wall. Storeys: a floor
/// with its image at each height that is within the building, between outlines in the edge colour.
/// Parts that have no image have the town's colours. Buildings with holes or several parts take
/// part only where the document says so, or are drawn in their colours; so are those that no image
/// is within, of storeys. Storeys have the outline of the whole building too; roofs and walls have
/// outlines where edges are asked for. Several threads may build tiles at a time.
///
/// @param buildings  indices into town.footprints.buildings
/// @return           null where nothing is to be drawn
osg::ref_ptr<osg::Node> buildTexturedTile(const Town &town,
                                          const contract::BuildingTextures &textures,
                                          TextureImages &images,
                                          std::span<const std::uint32_t> buildings,
                                          const osg::Vec3d &origin, double skirtM);

} // namespace vlt::scene
