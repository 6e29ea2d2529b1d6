#include "contract/ParametricKeys.h"
#include "plugins/scene/link/LinkScene.h"
#include "plugins/scene/parametric/BadQuery.h"
#include "plugins/scene/parametric/LinkQuery.h"
#include "plugins/scene/parametric/ParametricQuery.h"
#include "plugins/scene/parametric/PylonQuery.h"
#include "plugins/scene/pylon/PylonFactory.h"

#include <osgDB/FileNameUtils>
#include <osgDB/Registry>

namespace {

using namespace vlt::scene;
namespace parametric = vlt::contract::parametric;

/// Opens "inline://parametric/query?object=pylon&...inlinepylonurl", and the same with object=link,
/// in any program of the scene library. It does not register the protocol, because the library
/// would then look up other names of this protocol on the network.
class InlinePylonReader : public osgDB::ReaderWriter
{
public:
    InlinePylonReader() { supportsExtension(parametric::Extension, "Parametric pylons and links"); }

    const char *className() const override { return "Parametric pylon reader"; }

    ReadResult readObject(const std::string &name, const Options *options) const override
    {
        return readNode(name, options);
    }

    ReadResult readNode(const std::string &name, const Options *) const override
    {
        if (!acceptsExtension(osgDB::getLowerCaseFileExtension(name)))
            return ReadResult::FILE_NOT_HANDLED;
        try {
            if (asksFor(name, parametric::ObjectLink))
                return buildLinkScene(parseLinkQuery(name)).get();
            return buildPylon(parsePylonQuery(name)).get();
        } catch (const BadQuery &fault) {
            return ReadResult(fault.what());
        }
    }
};

} // namespace

REGISTER_OSGPLUGIN(inlinepylonurl, InlinePylonReader)
