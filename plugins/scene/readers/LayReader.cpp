#include "layers/LayerScene.h"

#include <osg/Notify>
#include <osgDB/FileNameUtils>
#include <osgDB/FileUtils>
#include <osgDB/Registry>

namespace {

using namespace vlt::scene;

/// The project file that a caller names: the plug-in datum "vlt.project", or what follows
/// "project=" in the option string, in quotation marks or up to its end.
std::string projectOf(const osgDB::Options *options)
{
    if (!options)
        return {};
    std::string datum = options->getPluginStringData("vlt.project");
    if (!datum.empty())
        return datum;
    constexpr std::string_view Key = "project=";
    const std::string &text = options->getOptionString();
    const std::size_t at = text.find(Key);
    if (at == std::string::npos)
        return {};
    const std::string value = text.substr(at + Key.size());
    return value.starts_with('"') ? value.substr(1, value.find('"', 1) - 1) : value;
}

/// Whether a caller wants the terrain's surface under links: the plug-in datum "vlt.terrain" is
/// "1".
bool asksForTerrain(const osgDB::Options *options)
{
    return options && options->getPluginStringData("vlt.terrain") == "1";
}

osg::ref_ptr<osg::Group> read(const std::string &path, const LayerRequest &request)
{
    std::vector<std::string> notices;
    osg::ref_ptr<osg::Group> scene = readLayerScene(path, request, notices);
    for (const std::string &notice : notices)
        OSG_WARN << path << ": " << notice << std::endl;
    OSG_INFO << path << ':';
    for (const std::string &fact : scene->getDescriptions())
        OSG_INFO << ' ' << fact;
    OSG_INFO << std::endl;
    return scene;
}

/// Opens layers of sites and of links in any program of the scene library.
class LayReader : public osgDB::ReaderWriter
{
public:
    LayReader() { supportsExtension("lay", "Layers of telecom sites and links"); }

    const char *className() const override { return "Telecom layer reader"; }

    ReadResult readObject(const std::string &name, const Options *options) const override
    {
        return readNode(name, options);
    }

    ReadResult readNode(const std::string &name, const Options *options) const override
    {
        if (!acceptsExtension(osgDB::getLowerCaseFileExtension(name)))
            return ReadResult::FILE_NOT_HANDLED;
        const std::string path =
            osgDB::containsServerAddress(name) ? "" : osgDB::findDataFile(name, options);
        if (path.empty())
            return ReadResult::FILE_NOT_FOUND;
        try {
            return read(path, {projectOf(options), asksForTerrain(options)}).get();
        } catch (const std::exception &fault) { // BadLayer, BadQuery, or out of memory
            return ReadResult(path + ": " + fault.what());
        }
    }
};

} // namespace

REGISTER_OSGPLUGIN(lay, LayReader)
