#pragma once

#include "plugins/scene/reading/LocalFrame.h"

#include <memory>
#include <string>

namespace vlt::scene {

/// The local frame of a scene and the system from which its positions come.
struct SceneFrame
{
    std::shared_ptr<const LocalFrame> local;
    std::string srs; ///< "EPSG:2154", or the name of the system; empty: unknown
    std::string wkt; ///< of the system; empty: unknown
};

} // namespace vlt::scene
