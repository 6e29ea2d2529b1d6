#include "plugins/scene/buildings/CityCore.h"

#include <algorithm>
#include <cmath>
#include <set>
#include <vector>

namespace vlt::scene {

namespace {

constexpr double TailShare = 0.05;
constexpr double MaxExtents = 20;
constexpr double MinFarM = 20000;

struct Interval
{
    double minimum = 0;
    double maximum = 0;

    bool contains(double value) const { return value >= minimum && value <= maximum; }
};

/// The coordinates that are not far from the middle nine tenths.
Interval nearOnes(std::vector<double> values)
{
    const auto last = static_cast<double>(values.size() - 1);
    const auto at = [&values](double rank) {
        const auto nth = values.begin() + static_cast<std::ptrdiff_t>(rank);
        std::nth_element(values.begin(), nth, values.end());
        return *nth;
    };
    const double minimum = at(std::ceil(TailShare * last));
    const double maximum = at(std::floor((1 - TailShare) * last));
    const double margin = std::max(MinFarM, MaxExtents * (maximum - minimum));
    return {minimum - margin, maximum + margin};
}

const osg::Vec2d &firstOf(const CityModel &city, std::size_t building)
{
    const Footprints &footprints = city.footprints;
    return city.positions[footprints.rings[footprints.buildings[building].ringBegin].begin];
}

double distanceFrom(const osg::BoundingBoxd &extent, const osg::Vec2d &position)
{
    const double east = std::max({extent.xMin() - position.x(), position.x() - extent.xMax(), 0.0});
    const double north =
        std::max({extent.yMin() - position.y(), position.y() - extent.yMax(), 0.0});
    return std::hypot(east, north);
}

} // namespace

std::optional<CityCore> coreOf(const CityModel &city)
{
    const std::size_t number = city.footprints.buildings.size();
    if (number < 3)
        return std::nullopt;
    std::vector<double> eastings;
    std::vector<double> northings;
    for (std::size_t i = 0; i < number; ++i) {
        eastings.push_back(firstOf(city, i).x());
        northings.push_back(firstOf(city, i).y());
    }
    const Interval east = nearOnes(eastings);
    const Interval north = nearOnes(northings);
    CityCore core;
    std::set<std::uint32_t> features; // several parts of one count once
    for (std::size_t i = 0; i < number; ++i) {
        if (!east.contains(eastings[i]) || !north.contains(northings[i])) {
            core.far += features.insert(city.footprints.buildings[i].feature).second ? 1 : 0;
            continue;
        }
        for (const Footprints::Ring &ring : city.footprints.ringsOf(city.footprints.buildings[i])) {
            for (std::uint32_t k = ring.begin; k < ring.end; ++k)
                core.extent.expandBy(city.positions[k].x(), city.positions[k].y(), 0);
        }
    }
    if (core.far == 0 || !core.extent.valid())
        return std::nullopt;
    for (std::size_t i = 0; i < number; ++i) {
        const double distanceM = distanceFrom(core.extent, firstOf(city, i));
        if (distanceM > core.distanceM) {
            core.distanceM = distanceM;
            core.farthest = static_cast<std::uint32_t>(i);
        }
    }
    return core;
}

} // namespace vlt::scene
