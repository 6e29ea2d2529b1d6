#include "city/GroundHeights.h"

#include "contract/BadLayer.h"
#include "contract/NoDataText.h"
#include "contract/Stopped.h"
#include "linkpath/TerrainRaster.h"
#include "localfiles/NoNetwork.h"

#include <cpl_error.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace vlt::city {

using contract::BadLayer;
using contract::BaseRule;

namespace {

constexpr float NoGround = std::numeric_limits<float>::quiet_NaN();
constexpr std::size_t BuildingsPerReport = 4096;

/// The terrain with the transformation from the footprints' system.
class Ground
{
public:
    /// @throws BadLayer  with the reason why the terrain cannot be used
    Ground(const GroundSource &source, const OGRSpatialReference *srs)
    {
        OGRSpatialReference plane;
        plane.SetLocalCS("plane");
        auto [raster, reason] = linkpath::TerrainRaster::open(
            source.path, {contract::noDataNumber(source.noData), srs ? srs : &plane});
        if (!raster)
            throw BadLayer(contract::LibraryWords{reason});
        m_raster = std::move(raster);
        const OGRSpatialReference &own = m_raster->srs();
        if (srs && !srs->IsSame(&own)) {
            m_toRaster.reset(OGRCreateCoordinateTransformation(srs, &own));
            if (!m_toRaster)
                throw BadLayer("MESS_SCENE_NO_TRANSFORMATION");
        }
    }

    /// The ground height from those under positions; NaN if none of them has a height.
    float under(std::span<const Place> positions, BaseRule rule)
    {
        m_x.resize(positions.size());
        m_y.resize(positions.size());
        m_isThere.assign(positions.size(), 1);
        for (std::size_t i = 0; i < positions.size(); ++i) {
            m_x[i] = positions[i].x;
            m_y[i] = positions[i].y;
        }
        if (m_toRaster)
            m_toRaster->Transform(static_cast<int>(positions.size()), m_x.data(), m_y.data(),
                                  nullptr, m_isThere.data());
        double sum = 0;
        int count = 0;
        double lowest = HUGE_VAL;
        double highest = -HUGE_VAL;
        for (std::size_t i = 0; i < positions.size(); ++i) {
            const auto height = m_isThere[i] ? m_raster->heightM(m_x[i], m_y[i]) : std::nullopt;
            if (!height)
                continue;
            sum += *height;
            ++count;
            lowest = std::min<double>(lowest, *height);
            highest = std::max<double>(highest, *height);
        }
        if (count == 0)
            return NoGround;
        return static_cast<float>(rule == BaseRule::Minimum   ? lowest
                                  : rule == BaseRule::Maximum ? highest
                                                              : sum / count);
    }

private:
    std::unique_ptr<linkpath::TerrainRaster> m_raster;
    std::unique_ptr<OGRCoordinateTransformation> m_toRaster; ///< null: the same system
    std::vector<double> m_x;
    std::vector<double> m_y;
    std::vector<int> m_isThere;
};

/// Number of features with a building that has no height.
std::size_t featuresWithout(const Footprints &footprints, const std::vector<float> &heights)
{
    std::size_t count = 0;
    std::optional<std::uint32_t> last;
    for (std::size_t i = 0; i < heights.size(); ++i) {
        const std::uint32_t feature = footprints.buildings[i].feature;
        if (!std::isnan(heights[i]) || feature == last)
            continue;
        last = feature;
        ++count;
    }
    return count;
}

/// Gives buildings without a ground height the minimum of all others.
void fillIn(const Footprints &footprints, std::vector<float> &heights,
            contract::Substitutes &substitutes)
{
    const std::size_t missing = featuresWithout(footprints, heights);
    float lowest = std::numeric_limits<float>::infinity();
    for (const float height : heights)
        lowest = std::isnan(height) ? lowest : std::min(lowest, height);
    const bool isAll = std::isinf(lowest);
    std::replace_if(
        heights.begin(), heights.end(), [](float height) { return std::isnan(height); },
        isAll ? 0.0F : lowest);
    (isAll ? substitutes.zeroGround : substitutes.lowestGround) = missing;
}

/// The terrain of a document; nothing, with a notice, if there is none or it cannot be used.
std::optional<Ground> openGround(const GroundSource &source, const OGRSpatialReference *srs,
                                 Notices &notices)
{
    if (source.file.empty()) {
        notices.push_back(contract::formatted("MESS_SCENE_NO_TERRAIN"));
        return std::nullopt;
    }
    if (!contract::isNoDataText(source.noData))
        notices.push_back(contract::formatted("MESS_SCENE_BAD_TERRAIN_NODATA", {source.noData}));
    try {
        return Ground(source, srs);
    } catch (const BadLayer &fault) {
        notices.push_back(
            contract::formatted("MESS_SCENE_BAD_TERRAIN", {source.file, fault.what()}));
    }
    return std::nullopt;
}

} // namespace

std::vector<float> groundUnder(const Footprints &footprints, const OGRSpatialReference *srs,
                               const GroundSource &source, BaseRule rule,
                               contract::Substitutes &substitutes, Notices &notices,
                               const Progress &progress)
{
    const CPLErrorHandlerPusher quiet(CPLQuietErrorHandler);
    const localfiles::NoNetwork offline;
    std::vector<float> heights(footprints.buildings.size(), rule == BaseRule::Zero ? 0 : NoGround);
    if (rule == BaseRule::Zero)
        return heights;
    if (rule == BaseRule::Field) {
        for (std::size_t i = 0; i < heights.size(); ++i)
            heights[i] = footprints.features[footprints.buildings[i].feature].groundM;
        substitutes.terrainBase = featuresWithout(footprints, heights);
        if (substitutes.terrainBase == 0)
            return heights;
    }
    std::optional<Ground> ground = openGround(source, srs, notices);
    for (std::size_t i = 0; ground && i < heights.size(); ++i) {
        if (i % BuildingsPerReport == 0 &&
            !progress(static_cast<double>(i) / static_cast<double>(heights.size())))
            throw contract::Stopped{};
        if (!std::isnan(heights[i]))
            continue;
        const Footprints::Ring &ring = footprints.rings[footprints.buildings[i].ringBegin];
        heights[i] = ground->under(footprints.positionsOf(ring), rule);
    }
    fillIn(footprints, heights, substitutes);
    if (ground && substitutes.zeroGround > 0)
        notices.push_back(contract::formatted("MESS_SCENE_NO_GROUND"));
    return heights;
}

} // namespace vlt::city
