#pragma once

#include <string>
#include <vector>

namespace vlt::scene {

/// Fields of one transmitter by their index; -1 where there is none.
struct TransmitterColumns
{
    int number = 0; ///< of the header: 2 for "Transmitter-2 Azimuth"
    int height = -1;
    int azimuth = -1;
    int tilt = -1;
};

/// Fields of a site table that a scene needs, by their index; -1 where there is none.
struct SceneColumns
{
    int name = -1;
    int terrainHeight = -1;
    std::vector<TransmitterColumns> transmitters; ///< by rising number
};

/// The columns that contract::recogniseColumns() finds, by transmitters. Of several that a
/// transmitter has for one quantity the first counts.
SceneColumns sceneColumnsOf(const std::vector<std::string> &fieldNames);

} // namespace vlt::scene
