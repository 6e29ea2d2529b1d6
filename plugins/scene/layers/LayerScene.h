#pragma once

#include "plugins/scene/layers/PylonTiles.h"
#include "plugins/scene/reading/LayerFile.h"

#include <osg/Group>

#include <string>
#include <vector>

namespace vlt::scene {

/// What a caller wants of a layer.
struct LayerRequest
{
    std::string project;      ///< path of the project file that the layer belongs to; may be empty
    bool withTerrain = false; ///< also the terrain's surface under links, where there is one
    TileContent content = TileContent::WhenDrawn;
};

/// Makes the scene of a layer of sites or of links: SiteScene.h, LinkLayerScene.h.
///
/// @param path     of the layer file
/// @param notices  takes what the user has to know of a scene that is not whole, one line each
/// @throws BadLayer, BadQuery  naming what is missing or wrong
osg::ref_ptr<osg::Group> readLayerScene(const LayerFile &file, const std::string &path,
                                        const LayerRequest &request,
                                        std::vector<std::string> &notices);

} // namespace vlt::scene
