#include "city/CityCore.h"

#include "localframe/NearOnes.h"

#include <algorithm>
#include <cmath>
#include <set>
#include <vector>

namespace vlt::city {

namespace {

using localframe::Interval;
using localframe::nearOnes;

double distanceFrom(const CityCore &core, const Place &position)
{
    const double east = std::max({core.least.x - position.x, position.x - core.most.x, 0.0});
    const double north = std::max({core.least.y - position.y, position.y - core.most.y, 0.0});
    return std::hypot(east, north);
}

void include(CityCore &core, const Place &position)
{
    core.least = {std::min(core.least.x, position.x), std::min(core.least.y, position.y)};
    core.most = {std::max(core.most.x, position.x), std::max(core.most.y, position.y)};
}

} // namespace

std::optional<CityCore> coreOf(const Footprints &footprints, std::span<const Place> positions)
{
    const std::size_t number = footprints.buildings.size();
    if (number < 3)
        return std::nullopt;
    const auto firstOf = [&](std::size_t building) -> const Place & {
        return positions[footprints.rings[footprints.buildings[building].ringBegin].begin];
    };
    std::vector<double> eastings;
    std::vector<double> northings;
    for (std::size_t i = 0; i < number; ++i) {
        eastings.push_back(firstOf(i).x);
        northings.push_back(firstOf(i).y);
    }
    const Interval east = nearOnes(std::move(eastings), 1);
    const Interval north = nearOnes(std::move(northings), 1);
    CityCore core{{HUGE_VAL, HUGE_VAL}, {-HUGE_VAL, -HUGE_VAL}};
    std::set<std::uint32_t> features; // several parts of one count once
    for (std::size_t i = 0; i < number; ++i) {
        if (!east.contains(firstOf(i).x) || !north.contains(firstOf(i).y)) {
            core.far += features.insert(footprints.buildings[i].feature).second ? 1 : 0;
            continue;
        }
        for (const Footprints::Ring &ring : footprints.ringsOf(footprints.buildings[i])) {
            for (std::uint32_t k = ring.begin; k < ring.end; ++k)
                include(core, positions[k]);
        }
    }
    if (core.far == 0 || core.least.x > core.most.x)
        return std::nullopt;
    for (std::size_t i = 0; i < number; ++i) {
        const double distanceM = distanceFrom(core, firstOf(i));
        if (distanceM > core.distanceM) {
            core.distanceM = distanceM;
            core.farthest = static_cast<std::uint32_t>(i);
        }
    }
    return core;
}

} // namespace vlt::city
