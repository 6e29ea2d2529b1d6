#pragma once

#include "plugins/scene/reading/LocalFrame.h"

#include <memory>
#include <string>

namespace vlt::scene {

/// Where a scene lies.
struct SceneFrame
{
    std::shared_ptr<const LocalFrame> local;
    std::string
        srs; ///< name of the table's system: "EPSG:2154", or as it calls itself; empty: unknown
};

} // namespace vlt::scene
