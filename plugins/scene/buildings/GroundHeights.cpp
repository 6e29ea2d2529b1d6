#include "plugins/scene/buildings/GroundHeights.h"

#include "contract/NoDataText.h"
#include "linkpath/TerrainRaster.h"
#include "localfiles/NoNetwork.h"
#include "plugins/scene/reading/BadLayer.h"
#include "plugins/scene/reading/Stopped.h"

#include <cpl_error.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace vlt::scene {

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
            throw BadLayer(LibraryWords{reason});
        m_raster = std::move(raster);
        const OGRSpatialReference &own = m_raster->srs();
        if (srs && !srs->IsSame(&own)) {
            m_toRaster.reset(OGRCreateCoordinateTransformation(srs, &own));
            if (!m_toRaster)
                throw BadLayer("MESS_SCENE_NO_TRANSFORMATION");
        }
    }

    /// Mean of the heights under positions; NaN if none of them has a height.
    float meanUnder(std::span<const osg::Vec2d> positions)
    {
        m_x.resize(positions.size());
        m_y.resize(positions.size());
        m_isThere.assign(positions.size(), 1);
        for (std::size_t i = 0; i < positions.size(); ++i) {
            m_x[i] = positions[i].x();
            m_y[i] = positions[i].y();
        }
        if (m_toRaster)
            m_toRaster->Transform(static_cast<int>(positions.size()), m_x.data(), m_y.data(),
                                  nullptr, m_isThere.data());
        double sum = 0;
        int count = 0;
        for (std::size_t i = 0; i < positions.size(); ++i) {
            const auto height = m_isThere[i] ? m_raster->heightM(m_x[i], m_y[i]) : std::nullopt;
            sum += height.value_or(0);
            count += height ? 1 : 0;
        }
        return count > 0 ? static_cast<float>(sum / count) : NoGround;
    }

private:
    std::unique_ptr<linkpath::TerrainRaster> m_raster;
    std::unique_ptr<OGRCoordinateTransformation> m_toRaster; ///< null: the same system
    std::vector<double> m_x;
    std::vector<double> m_y;
    std::vector<int> m_isThere;
};

/// Gives buildings without a ground height the minimum of all others.
void fillIn(std::vector<float> &heights, Notices &notices)
{
    float lowest = std::numeric_limits<float>::infinity();
    std::size_t missing = 0;
    for (const float height : heights) {
        missing += std::isnan(height) ? 1 : 0;
        lowest = std::isnan(height) ? lowest : std::min(lowest, height);
    }
    if (missing == 0)
        return;
    const bool isAll = missing == heights.size();
    std::replace_if(
        heights.begin(), heights.end(), [](float height) { return std::isnan(height); },
        isAll ? 0.0F : lowest);
    notices.push_back(
        isAll ? contract::formatted("MESS_SCENE_NO_GROUND")
              : contract::formatted("MESS_SCENE_LOWEST_GROUND",
                                    {std::to_string(missing), std::to_string(heights.size())}));
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
                               const GroundSource &source, Notices &notices,
                               const Progress &progress)
{
    const CPLErrorHandlerPusher quiet(CPLQuietErrorHandler);
    const localfiles::NoNetwork offline;
    std::vector<float> heights(footprints.buildings.size(), 0);
    std::optional<Ground> ground = openGround(source, srs, notices);
    if (!ground)
        return heights;
    for (std::size_t i = 0; i < heights.size(); ++i) {
        if (i % BuildingsPerReport == 0 &&
            !progress(static_cast<double>(i) / static_cast<double>(heights.size())))
            throw Stopped{};
        const Footprints::Ring &ring = footprints.rings[footprints.buildings[i].ringBegin];
        heights[i] = ground->meanUnder(footprints.positionsOf(ring));
    }
    fillIn(heights, notices);
    return heights;
}

} // namespace vlt::scene
