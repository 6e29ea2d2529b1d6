#include "plugins/scene/buildings/BuildingScene.h"
#include "plugins/scene/readers/ReadRequest.h"

#include <osgDB/FileNameUtils>
#include <osgDB/Registry>

namespace {

using namespace vlt::scene;

/// Opens building documents in any program of the scene library.
class TexbReader : public osgDB::ReaderWriter
{
public:
    TexbReader()
    {
        supportsExtension("texb", "Documents of extruded buildings");
        supportsOption(ProjectOption, ProjectOptionText);
    }

    const char *className() const override { return "Building document reader"; }

    ReadResult readObject(const std::string &name, const Options *options) const override
    {
        return readNode(name, options);
    }

    ReadResult readNode(const std::string &name, const Options *options) const override
    {
        if (!acceptsExtension(osgDB::getLowerCaseFileExtension(name)))
            return ReadResult::FILE_NOT_HANDLED;
        return readLocalScene(name, options,
                              [](const std::string &path, const ReadRequest &request,
                                 std::vector<std::string> &notices) {
                                  return readBuildingScene(path, request.project, notices,
                                                           request.progress, request.isOnlyDrawn);
                              });
    }
};

} // namespace

REGISTER_OSGPLUGIN(texb, TexbReader)
