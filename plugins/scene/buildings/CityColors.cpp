#include "plugins/scene/buildings/CityColors.h"

#include "contract/RasterColors.h"
#include "coverage/CoverageRaster.h"
#include "coverage/LocalRaster.h"
#include "plugins/scene/buildings/ColorText.h"
#include "plugins/scene/buildings/PositionTransform.h"
#include "plugins/scene/reading/BadLayer.h"
#include "plugins/scene/reading/Stopped.h"
#include "plugins/scene/reading/TableLocation.h"

#include <cpl_error.h>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <tuple>

namespace vlt::scene {

namespace {

using colormaps::ColorMap;
using colormaps::Rgba;
using contract::RasterColors;
using coverage::CoverageRaster;

constexpr Rgba WithoutValue{200, 200, 200, 255};
constexpr std::size_t BuildingsPerReport = 100; // few, because one may cover millions of pixels
constexpr double RangeShare = 0.5;              ///< of the work, if the whole raster is read

ColorMap loadMap(const RasterColors &colors, const std::vector<std::string> &directories,
                 CoverageRaster &raster, const Progress &progress)
{
    const std::string path = locateFile(colors.map, directories);
    if (path.empty())
        throw BadLayer("MESS_SCENE_NO_MAP", {colors.map});
    const CPLErrorHandlerPusher quiet(CPLQuietErrorHandler);
    CPLErrorReset();
    ColorMap map;
    bool isLoaded = false;
    if (colors.isStretched) {
        const std::optional<coverage::ValueRange> range = raster.range(
            [&](double share) { return progress(share * RangeShare) ? true : throw Stopped{}; });
        if (!range)
            throw BadLayer("MESS_SCENE_EMPTY_RASTER", {colors.raster});
        isLoaded = map.load(path, range->minimum, range->maximum);
    } else
        isLoaded = map.load(path);
    if (!isLoaded) {
        const std::string why = CPLGetLastErrorMsg();
        throw BadLayer(
            "MESS_SCENE_BAD_MAP",
            {colors.map, why.empty() ? contract::formatted("MESS_SCENE_NOT_A_MAP") : why});
    }
    return map;
}

std::unique_ptr<CoverageRaster> openRaster(const RasterColors &colors,
                                           const std::vector<std::string> &directories)
{
    auto [raster, reason] =
        CoverageRaster::open(coverage::locateRaster(colors.raster, directories), colors.noData);
    if (raster && !raster->isPlaced())
        reason = contract::formatted("MESS_SCENE_NOT_PLACED");
    if (!reason.empty())
        throw BadLayer("MESS_SCENE_BAD_RASTER", {colors.raster, reason});
    return std::move(raster);
}

/// The buildings in an order with neighbours close together, so that each block of a raster is read
/// once.
std::vector<std::size_t> inRows(const Footprints &footprints)
{
    constexpr double Rows = 64;
    osg::Vec2d least(HUGE_VAL, HUGE_VAL);
    osg::Vec2d most(-HUGE_VAL, -HUGE_VAL);
    for (const osg::Vec2d &position : footprints.positions) {
        least.set(std::min(least.x(), position.x()), std::min(least.y(), position.y()));
        most.set(std::max(most.x(), position.x()), std::max(most.y(), position.y()));
    }
    const double perRow = std::max((most.y() - least.y()) / Rows, 1e-9);
    struct Key
    {
        double row = 0;
        double x = 0;
    };
    std::vector<Key> keys;
    keys.reserve(footprints.buildings.size());
    for (const Footprints::Building &building : footprints.buildings) {
        const osg::Vec2d &position =
            footprints.positions[footprints.rings[building.ringBegin].begin];
        const double row = std::floor((position.y() - least.y()) / perRow);
        const bool isFinite = std::isfinite(row) && std::isfinite(position.x());
        keys.push_back(isFinite ? Key{row, position.x()} : Key{});
    }
    std::vector<std::size_t> order(keys.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::sort(order.begin(), order.end(), [&keys](std::size_t a, std::size_t b) {
        return std::tie(keys[a].row, keys[a].x) < std::tie(keys[b].row, keys[b].x);
    });
    return order;
}

/// Determines the values of a raster under the buildings of a city.
class Values
{
public:
    Values(const Footprints &footprints, const PositionTransform &transform, CoverageRaster &raster,
           coverage::Reduction reduction)
        : m_footprints(footprints)
        , m_transform(transform)
        , m_raster(raster)
        , m_reduction(reduction)
    {}

    /// The value under a building; NaN if there is none.
    double under(const Footprints::Building &building)
    {
        m_positions.clear();
        m_rings.clear();
        for (const Footprints::Ring &ring : m_footprints.ringsOf(building)) {
            const auto positions = m_footprints.positionsOf(ring);
            m_positions.insert(m_positions.end(), positions.begin(), positions.end());
        }
        m_transform.apply(m_positions);
        m_points.clear();
        for (const osg::Vec2d &position : m_positions)
            m_points.push_back({position.x(), position.y()});
        std::span<const coverage::Place> rest = m_points;
        for (const Footprints::Ring &ring : m_footprints.ringsOf(building)) {
            m_rings.push_back(rest.first(ring.end - ring.begin));
            rest = rest.subspan(ring.end - ring.begin);
        }
        return m_raster.valueUnder(m_rings, m_reduction).value_or(std::nan(""));
    }

private:
    const Footprints &m_footprints;
    const PositionTransform &m_transform;
    CoverageRaster &m_raster;
    coverage::Reduction m_reduction;
    std::vector<osg::Vec2d> m_positions;
    std::vector<coverage::Place> m_points;
    std::vector<coverage::Ring> m_rings;
};

std::vector<Rgba> rasterColors(const CityModel &city, const RasterColors &colors,
                               const std::vector<std::string> &directories, Notices &notices,
                               const Progress &progress)
{
    const std::unique_ptr<CoverageRaster> raster = openRaster(colors, directories);
    const PositionTransform transform(city.srs, raster->srs());
    if (!transform.isUsable())
        throw BadLayer("MESS_SCENE_BAD_RASTER",
                       {colors.raster, contract::formatted("MESS_SCENE_NO_TRANSFORMATION_FROM")});
    const ColorMap map = loadMap(colors, directories, *raster, progress);

    const auto interpretation = colors.isInterpolated ? colormaps::Interpretation::Interpolation
                                                      : colormaps::Interpretation::ColorRanges;
    const Footprints &footprints = city.footprints;
    const std::size_t number = footprints.buildings.size();
    std::vector<Rgba> found(number, WithoutValue);
    Values values(footprints, transform, *raster, colors.reduction);
    const double before = colors.isStretched ? RangeShare : 0;
    std::size_t done = 0;
    std::size_t without = 0;
    for (const std::size_t i : inRows(footprints)) {
        const double share = static_cast<double>(done) / static_cast<double>(number);
        if (done++ % BuildingsPerReport == 0 && !progress(before + share * (1 - before)))
            throw Stopped{};
        const double value = values.under(footprints.buildings[i]);
        without += std::isnan(value) ? 1 : 0;
        found[i] = colorOf(map, value, interpretation).value_or(WithoutValue);
    }
    if (without > 0)
        notices.push_back(
            contract::formatted("MESS_SCENE_NO_VALUE",
                                {std::to_string(without), std::to_string(number), colors.raster}));
    return found;
}

} // namespace

std::vector<Rgba> townColors(const CityModel &city, const std::string &colorText,
                             const std::vector<std::string> &directories, Notices &notices,
                             const Progress &progress)
{
    const std::size_t number = city.footprints.buildings.size();
    if (colorText.empty())
        return std::vector<Rgba>(number, WithoutValue);
    if (const std::optional<Rgba> plain = parseColor(colorText))
        return std::vector<Rgba>(number, *plain);
    try {
        const std::optional<RasterColors> colors = contract::parseRasterColors(colorText);
        if (!colors)
            throw BadLayer("MESS_SCENE_NO_COLORS", {colorText});
        return rasterColors(city, *colors, directories, notices, progress);
    } catch (const BadLayer &fault) {
        notices.push_back(fault.what());
    }
    return std::vector<Rgba>(number, WithoutValue);
}

} // namespace vlt::scene
