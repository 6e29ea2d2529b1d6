#include "plugins/scene/buildings/BuildingScene.h"
#include "plugins/scene/buildings/DocumentFiles.h"
#include "plugins/scene/layers/LayerScene.h"
#include "plugins/scene/readers/ReadRequest.h"

#include <osgDB/FileNameUtils>
#include <osgDB/Registry>

namespace {

using namespace vlt::scene;

osg::ref_ptr<osg::Group> readLayer(const std::string &path, const ReadRequest &request,
                                   std::vector<std::string> &notices)
{
    const LayerFile file = readLayerFile(path);
    if (file.kind != LayerKind::Buildings)
        return readLayerScene(file, path,
                              {request.project, request.terrain,
                               request.isOnlyDrawn ? TileContent::WhenDrawn : TileContent::AtOnce},
                              notices);
    osg::ref_ptr<osg::Group> scene =
        readBuildingScene(locateDocument(file.source, path, request.project), request.project,
                          notices, request.progress, request.isOnlyDrawn);
    scene->setName(file.title);
    return scene;
}

/// Opens layers of sites, of links and of buildings in any program of the scene library.
class LayReader : public osgDB::ReaderWriter
{
public:
    LayReader()
    {
        supportsExtension("lay", "Layers of telecom sites, links and buildings");
        supportsOption(ProjectOption, ProjectOptionText);
    }

    const char *className() const override { return "Telecom layer reader"; }

    ReadResult readObject(const std::string &name, const Options *options) const override
    {
        return readNode(name, options);
    }

    ReadResult readNode(const std::string &name, const Options *options) const override
    {
        if (!acceptsExtension(osgDB::getLowerCaseFileExtension(name)))
            return ReadResult::FILE_NOT_HANDLED;
        return readLocalScene(name, options, readLayer);
    }
};

} // namespace

REGISTER_OSGPLUGIN(lay, LayReader)
