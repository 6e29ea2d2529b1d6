#pragma once

#include <string>
#include <vector>

namespace vlt::scene {

/// The fields of a transmitter as indices; -1 for a missing one.
struct TransmitterColumns
{
    int number = 0; ///< as in the header: 2 for "Transmitter-2 Azimuth"
    int height = -1;
    int azimuth = -1;
    int tilt = -1;
};

/// The fields of a site table that a scene needs, as indices; -1 for a missing one.
struct SceneColumns
{
    int name = -1;
    int terrainHeight = -1;
    std::vector<TransmitterColumns> transmitters; ///< by ascending number
};

/// The columns that contract::recogniseColumns() finds, grouped by transmitter. If a transmitter
/// has several for a quantity, the first one is used.
SceneColumns sceneColumnsOf(const std::vector<std::string> &fieldNames);

} // namespace vlt::scene
