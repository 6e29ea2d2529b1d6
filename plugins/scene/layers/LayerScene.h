#pragma once

#include "plugins/scene/layers/PylonTiles.h"
#include "plugins/scene/reading/LayerFile.h"

#include <osg/Group>

#include <string>
#include <vector>

namespace vlt::scene {

/// The options of readLayerScene().
struct LayerRequest
{
    std::string project; ///< path of the project file to which the layer belongs; may be empty
    std::string terrain; ///< path of the terrain for sites without a ground height; may be empty
    TileContent content = TileContent::WhenDrawn;
};

/// Makes the scene of a layer of sites or of links: SiteScene.h, LinkLayerScene.h.
///
/// @param path     path of the layer file
/// @param notices  receives a line for the user for each incomplete part of the scene
/// @throws BadLayer, BadQuery  with a text that names what is missing or wrong
osg::ref_ptr<osg::Group> readLayerScene(const LayerFile &file, const std::string &path,
                                        const LayerRequest &request,
                                        std::vector<std::string> &notices);

} // namespace vlt::scene
