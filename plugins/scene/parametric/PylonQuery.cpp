#include "plugins/scene/parametric/PylonQuery.h"

#include "contract/ParametricKeys.h"
#include "contract/QueryOptions.h"
#include "plugins/scene/parametric/PylonItems.h"

namespace vlt::scene {

namespace keys = contract::query;
namespace parametric = contract::parametric;

PylonObject parsePylonQuery(std::string_view url)
{
    const ParametricQuery query(url, {parametric::Object, keys::DataFolder, keys::PylonType,
                                      parametric::Pylon, parametric::Transmitter,
                                      keys::TransmitterScale, parametric::Distances});
    expectObject(query, parametric::ObjectPylon);
    PylonObject pylon =
        readPylon(parametric::Pylon, query.single(parametric::Pylon), readCommonDesign(query));
    const std::vector<std::string_view> texts = query.all(parametric::Transmitter);
    checkTransmitterCount(texts.size());
    std::vector<Transmitter> &transmitters = pylon.design.transmitters;
    for (const std::string_view text : texts)
        transmitters.push_back(
            readTransmitter(numbered(parametric::Transmitter, transmitters.size() + 1), text));
    return pylon;
}

} // namespace vlt::scene
