#include "plugins/scene/parametric/PylonQuery.h"

#include "plugins/scene/parametric/BadQuery.h"
#include "plugins/scene/parametric/PylonItems.h"

namespace vlt::scene {

PylonObject parsePylonQuery(std::string_view url)
{
    const ParametricQuery query(url,
                                {"object", contract::query::DataFolder, contract::query::PylonType,
                                 "pylon", "transmitter", contract::query::TransmitterScale, "lod"});
    const std::string_view object = query.single("object");
    if (object != "pylon")
        Words("object", object).refuseUnknown("MESS_QUANTITY_KIND", object);
    PylonObject pylon = readPylon("pylon", query.single("pylon"), readCommonDesign(query));
    const std::vector<std::string_view> texts = query.all("transmitter");
    checkTransmitterCount(texts.size());
    std::vector<Transmitter> &transmitters = pylon.design.transmitters;
    for (const std::string_view text : texts)
        transmitters.push_back(
            readTransmitter("transmitter " + std::to_string(transmitters.size() + 1), text));
    return pylon;
}

} // namespace vlt::scene
