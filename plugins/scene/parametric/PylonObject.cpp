#include "plugins/scene/parametric/PylonObject.h"

#include <algorithm>
#include <array>
#include <utility>

namespace vlt::scene {

std::optional<PylonType> pylonTypeNamed(std::string_view name)
{
    using Entry = std::pair<std::string_view, PylonType>;
    static constexpr std::array<Entry, 10> Names = {{
        {"monopole_panel", PylonType::MonopolePanel},
        {"monopole_cylinder", PylonType::MonopoleCylinder},
        {"monopole_slim", PylonType::MonopoleSlim},
        {"lattice_panel", PylonType::LatticePanel},
        {"lattice_cylinder", PylonType::LatticeCylinder},
        {"guyed_panel", PylonType::GuyedPanel},
        {"rooftop_panel", PylonType::RooftopPanel},
        {"rooftop_cylinder", PylonType::RooftopCylinder},
        {"wood_panel", PylonType::WoodPanel},
        {"watertower_panel", PylonType::WaterTowerPanel},
    }};
    const auto found = std::find_if(Names.begin(), Names.end(),
                                    [name](const Entry &entry) { return entry.first == name; });
    return found == Names.end() ? std::nullopt : std::optional(found->second);
}

} // namespace vlt::scene
