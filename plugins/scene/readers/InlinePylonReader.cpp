#include "parametric/PylonQuery.h"
#include "pylon/PylonFactory.h"

#include <osgDB/FileNameUtils>
#include <osgDB/Registry>

namespace {

using namespace vlt::scene;

/// Opens "inline://parametric/query?object=pylon&...inlinepylonurl" in any program of the scene
/// library. It claims no protocol: names that it does not read would then go to the network.
class InlinePylonReader : public osgDB::ReaderWriter
{
public:
    InlinePylonReader() { supportsExtension("inlinepylonurl", "Parametric pylons"); }

    const char *className() const override { return "Parametric pylon reader"; }

    ReadResult readObject(const std::string &name, const Options *options) const override
    {
        return readNode(name, options);
    }

    ReadResult readNode(const std::string &name, const Options *) const override
    {
        if (!acceptsExtension(osgDB::getLowerCaseFileExtension(name)))
            return ReadResult::FILE_NOT_HANDLED;
        const PylonOrFault pylon = parsePylonQuery(name);
        if (const auto *fault = std::get_if<std::string>(&pylon))
            return ReadResult(*fault);
        return buildPylon(std::get<PylonObject>(pylon)).get();
    }
};

} // namespace

REGISTER_OSGPLUGIN(inlinepylonurl, InlinePylonReader)
