#include "coverage/CoverageRaster.h"

#include "contract/NoDataText.h"
#include "contract/SceneTexts.h"
#include "coverage/LocalRaster.h"
#include "coverage/RasterBlocks.h"
#include "coverage/RasterPercentiles.h"
#include "coverage/RowRuns.h"
#include "coverage/ValueReducer.h"
#include "localfiles/NoNetwork.h"
#include "localfiles/OpenLocal.h"

#include <cpl_string.h>
#include <gdal_priv.h>
#include <ogr_spatialref.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>
#include <utility>

namespace vlt::coverage {

namespace {

/// Centroid of a ring, or the mean of its vertices if its area is zero. It is computed relative to
/// the first vertex, to keep the precision of large coordinates.
Place middleOf(const std::vector<Place> &ring)
{
    const Place origin = ring.front();
    double area = 0;
    Place weighted;
    Place sum;
    for (std::size_t i = 0; i < ring.size(); ++i) {
        const Place a{ring[i].x - origin.x, ring[i].y - origin.y};
        const Place &next = ring[(i + 1) % ring.size()];
        const Place b{next.x - origin.x, next.y - origin.y};
        const double cross = a.x * b.y - b.x * a.y;
        area += cross;
        weighted.x += (a.x + b.x) * cross;
        weighted.y += (a.y + b.y) * cross;
        sum.x += a.x;
        sum.y += a.y;
    }
    const auto number = static_cast<double>(ring.size());
    Place middle{weighted.x / (3 * area), weighted.y / (3 * area)};
    if (!std::isfinite(middle.x) || !std::isfinite(middle.y))
        middle = {sum.x / number, sum.y / number};
    return {middle.x + origin.x, middle.y + origin.y};
}

} // namespace

class CoverageRaster::Parts
{
public:
    Parts(GDALDatasetUniquePtr raster, int band, std::optional<double> noData)
        : dataset(std::move(raster))
        , blocks(*dataset->GetRasterBand(band), noData)
    {
        std::array<double, 6> toPlace{};
        isPlaced = dataset->GetGeoTransform(toPlace.data()) == CE_None &&
                   GDALInvGeoTransform(toPlace.data(), toPixel.data());
        if (const OGRSpatialReference *stated = dataset->GetSpatialRef()) {
            srs = *stated;
            srs.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
        }
    }

    /// Converts the rings to pixels; false if a position is not finite or too far from the raster.
    bool take(std::span<const Ring> places)
    {
        constexpr double MaxDistancePx = 1e15; // pixels; keeps computed differences finite
        rings.resize(places.size());
        bool isNear = true;
        for (std::size_t i = 0; i < places.size(); ++i) {
            rings[i].clear();
            for (const Place &place : places[i]) {
                const Place pixel{toPixel[0] + toPixel[1] * place.x + toPixel[2] * place.y,
                                  toPixel[3] + toPixel[4] * place.x + toPixel[5] * place.y};
                isNear = isNear && std::abs(pixel.x) <= MaxDistancePx &&
                         std::abs(pixel.y) <= MaxDistancePx;
                rings[i].push_back(pixel);
            }
        }
        return isNear && !rings.empty() && !rings.front().empty();
    }

    void addMiddle(ValueReducer &reducer)
    {
        const Place middle = middleOf(rings.front());
        if (!(middle.x >= 0 && middle.x < blocks.columns() && middle.y >= 0 &&
              middle.y < blocks.rows()))
            return;
        const int column = static_cast<int>(middle.x);
        blocks.read(static_cast<int>(middle.y), column, column + 1,
                    [&](std::span<const double> values) { reducer.add(values); });
    }

    GDALDatasetUniquePtr dataset;
    RasterBlocks blocks;
    OGRSpatialReference srs;
    bool isPlaced = false;
    std::array<double, 6> toPixel{};
    std::vector<std::vector<Place>> rings; ///< of the current building, in pixels
    RowRuns runs;
};

CoverageRaster::CoverageRaster(std::unique_ptr<Parts> parts) : m_parts(std::move(parts)) {}

CoverageRaster::~CoverageRaster() = default;

contract::Opened<std::unique_ptr<CoverageRaster>>
CoverageRaster::open(const std::string &path, const std::string &noData, int band)
{
    const CPLErrorHandlerPusher quiet(CPLQuietErrorHandler);
    const localfiles::NoNetwork offline;
    const std::optional<double> typed = contract::noDataNumber(noData);
    auto [dataset, why] = openLocalRaster(path, RasterUse::Values);
    const int bands = dataset ? dataset->GetRasterCount() : 0;
    if (dataset && (bands == 0 || localfiles::isColorPicture(*dataset)))
        why = contract::formatted("MESS_SCENE_NOT_ONE_BAND");
    else if (dataset && (band < 1 || band > bands))
        why = contract::formatted("MESS_SCENE_NO_BAND", {std::to_string(band)});
    else if (dataset && GDALDataTypeIsComplex(dataset->GetRasterBand(band)->GetRasterDataType()))
        why = contract::formatted("MESS_SCENE_COMPLEX");
    else if (dataset && !contract::isNoDataText(noData))
        why = contract::formatted("MESS_SCENE_BAD_NODATA", {noData});
    if (why.empty())
        return {std::unique_ptr<CoverageRaster>(
            new CoverageRaster(std::make_unique<Parts>(std::move(dataset), band, typed)))};
    return {nullptr, why};
}

std::optional<ValueRange> CoverageRaster::range(const Progress &progress)
{
    return m_parts->blocks.range(progress);
}

std::optional<ValueRange> CoverageRaster::percentiles(double low, double high,
                                                      const Progress &progress)
{
    return percentilesOf(m_parts->blocks, low, high, progress);
}

double CoverageRaster::pixelCount() const
{
    return static_cast<double>(m_parts->blocks.columns()) * m_parts->blocks.rows();
}

std::vector<std::string> CoverageRaster::files() const
{
    const CPLErrorHandlerPusher quiet(CPLQuietErrorHandler);
    const localfiles::NoNetwork offline;
    const CPLStringList names(m_parts->dataset->GetFileList());
    return {names.List(), names.List() + names.size()};
}

const OGRSpatialReference *CoverageRaster::srs() const
{
    return m_parts->srs.IsEmpty() ? nullptr : &m_parts->srs;
}

bool CoverageRaster::isPlaced() const
{
    return m_parts->isPlaced;
}

ValueKind CoverageRaster::valueKind() const
{
    GDALRasterBand &band = m_parts->blocks.band();
    if (!GDALDataTypeIsInteger(band.GetRasterDataType()) || band.GetScale() != 1 ||
        band.GetOffset() != 0)
        return ValueKind::Numbers;
    return band.GetCategoryNames() || band.GetColorTable() ? ValueKind::Classes
                                                           : ValueKind::Integers;
}

std::string CoverageRaster::unit() const
{
    return m_parts->blocks.band().GetUnitType();
}

std::string CoverageRaster::className(double value) const
{
    const CPLStringList names(m_parts->blocks.band().GetCategoryNames(), FALSE);
    const bool hasName = value >= 0 && value < names.size() && value == std::floor(value);
    return hasName ? names[static_cast<int>(value)] : "";
}

ValuesUnder CoverageRaster::under(std::span<const Ring> rings, Reduction reduction, bool withCounts)
{
    if (!m_parts->isPlaced || !m_parts->take(rings))
        return {};
    ValueReducer reducer(reduction, withCounts);
    RasterBlocks &blocks = m_parts->blocks;
    bool isWithin = false;
    m_parts->runs.find(
        m_parts->rings, blocks.columns(), blocks.rows(), [&](int row, int begin, int end) {
            isWithin = true;
            blocks.read(row, begin, end,
                        [&](std::span<const double> values) { reducer.add(values); });
        });
    if (!isWithin)
        m_parts->addMiddle(reducer);
    ValuesUnder under{reducer.result(), reducer.number(), {}};
    if (withCounts)
        under.counts = reducer.counts();
    return under;
}

} // namespace vlt::coverage
