#include "city/BuildingValues.h"

#include "contract/BadLayer.h"
#include "coverage/LocalRaster.h"

#include <algorithm>
#include <cmath>
#include <tuple>

namespace vlt::city {

using contract::BadLayer;
using contract::RasterColors;
using coverage::CoverageRaster;

std::unique_ptr<CoverageRaster> openRaster(const RasterColors &colors,
                                           const std::vector<std::string> &directories)
{
    auto [raster, reason] = CoverageRaster::open(coverage::locateRaster(colors.raster, directories),
                                                 colors.noData, colors.band);
    if (raster && !raster->isPlaced())
        reason = contract::formatted("MESS_SCENE_NOT_PLACED");
    if (!reason.empty())
        throw BadLayer("MESS_SCENE_BAD_RASTER", {colors.raster, reason});
    return std::move(raster);
}

void checkTransform(const PositionTransform &transform, const RasterColors &colors)
{
    if (!transform.isUsable())
        throw BadLayer("MESS_SCENE_BAD_RASTER",
                       {colors.raster, contract::formatted("MESS_SCENE_NO_TRANSFORMATION_FROM")});
}

std::string withoutValue(std::size_t without, std::size_t features, const RasterColors &colors)
{
    return contract::formatted("MESS_SCENE_NO_VALUE",
                               {std::to_string(without), std::to_string(features), colors.raster});
}

std::vector<std::size_t> featuresInRows(const Footprints &footprints)
{
    constexpr double Rows = 64;
    double least = HUGE_VAL;
    double most = -HUGE_VAL;
    for (const Place &position : footprints.positions) {
        least = std::min(least, position.y);
        most = std::max(most, position.y);
    }
    const double perRow = std::max((most - least) / Rows, 1e-9);
    struct Key
    {
        double row = 0;
        double x = 0;
        std::size_t building = 0;
    };
    std::vector<Key> keys;
    keys.reserve(footprints.features.size());
    for (std::size_t i = 0; i < footprints.buildings.size(); ++i) {
        const Footprints::Building &building = footprints.buildings[i];
        if (i > 0 && footprints.buildings[i - 1].feature == building.feature)
            continue;
        const Place &position = footprints.positions[footprints.rings[building.ringBegin].begin];
        const double row = std::floor((position.y - least) / perRow);
        const bool isFinite = std::isfinite(row) && std::isfinite(position.x);
        keys.push_back(isFinite ? Key{row, position.x, i} : Key{0, 0, i});
    }
    std::sort(keys.begin(), keys.end(), [](const Key &a, const Key &b) {
        return std::tie(a.row, a.x) < std::tie(b.row, b.x);
    });
    std::vector<std::size_t> order;
    order.reserve(keys.size());
    for (const Key &key : keys)
        order.push_back(key.building);
    return order;
}

coverage::ValuesUnder BuildingValues::valuesUnder(std::size_t first, bool withCounts)
{
    m_positions.clear();
    m_rings.clear();
    const auto begin = m_footprints.buildings.begin() + static_cast<std::ptrdiff_t>(first);
    const auto end =
        std::find_if(begin, m_footprints.buildings.end(),
                     [begin](const auto &building) { return building.feature != begin->feature; });
    for (auto building = begin; building != end; ++building) {
        for (const Footprints::Ring &ring : m_footprints.ringsOf(*building)) {
            const auto positions = m_footprints.positionsOf(ring);
            m_positions.insert(m_positions.end(), positions.begin(), positions.end());
        }
    }
    m_transform.apply(m_positions);
    std::span<const Place> rest = m_positions;
    for (auto building = begin; building != end; ++building) {
        for (const Footprints::Ring &ring : m_footprints.ringsOf(*building)) {
            m_rings.push_back(rest.first(ring.end - ring.begin));
            rest = rest.subspan(ring.end - ring.begin);
        }
    }
    return m_raster.under(m_rings, m_reduction, withCounts);
}

} // namespace vlt::city
