#include "plugins/scene/layers/SceneColumns.h"

#include "contract/SiteColumns.h"

#include <map>

namespace vlt::scene {

SceneColumns sceneColumnsOf(const std::vector<std::string> &fieldNames)
{
    const contract::SiteColumns found = contract::recogniseColumns(fieldNames);
    std::map<int, TransmitterColumns> transmitters;
    const auto assign = [&](const std::vector<int> &fields, int TransmitterColumns::*member) {
        for (const int field : fields) {
            const auto number =
                contract::transmitterOfColumn(fieldNames[static_cast<std::size_t>(field)]);
            if (!number)
                continue;
            TransmitterColumns &transmitter = transmitters[*number];
            transmitter.number = *number;
            if (transmitter.*member < 0)
                transmitter.*member = field;
        }
    };
    assign(found.heights, &TransmitterColumns::height);
    assign(found.azimuths, &TransmitterColumns::azimuth);
    assign(found.tilts, &TransmitterColumns::tilt);

    SceneColumns columns{found.name, found.terrainHeight, {}};
    for (const auto &[number, transmitter] : transmitters)
        columns.transmitters.push_back(transmitter);
    return columns;
}

} // namespace vlt::scene
