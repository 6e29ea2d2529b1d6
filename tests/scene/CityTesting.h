#pragma once

#include "plugins/scene/buildings/CityModel.h"

#include <algorithm>
#include <vector>

/// Helpers for the tests of towns.
namespace towntest {

using namespace vlt::scene;

using Ring = std::vector<osg::Vec2d>;
using Rings = std::vector<Ring>;

constexpr float BaseM = 30;

/// Adds a building; all rings except the first are holes.
inline void add(CityModel &city, const Rings &rings, float heightM = 12)
{
    Footprints &shapes = city.footprints;
    const auto begin = static_cast<std::uint32_t>(shapes.rings.size());
    for (const Ring &ring : rings) {
        const auto first = static_cast<std::uint32_t>(shapes.positions.size());
        for (const osg::Vec2d &position : ring) {
            shapes.positions.push_back({position.x(), position.y()});
            city.positions.push_back(shapes.positions.back());
        }
        shapes.rings.push_back({first, static_cast<std::uint32_t>(shapes.positions.size()),
                                shapes.rings.size() > begin});
    }
    shapes.buildings.push_back({begin, static_cast<std::uint32_t>(shapes.rings.size()), heightM,
                                static_cast<std::uint32_t>(shapes.features.size())});
    shapes.features.emplace_back();
    city.baseM.push_back(BaseM);
    city.wallColors.push_back({10, 20, 30, 255});
    city.roofColors.push_back({200, 100, 50, 255});
}

inline Ring square(double x, double y, double side)
{
    return {{x, y}, {x + side, y}, {x + side, y + side}, {x, y + side}};
}

inline Ring turned(Ring ring)
{
    std::reverse(ring.begin(), ring.end());
    return ring;
}

} // namespace towntest
