#include "linkpath/TerrainRaster.h"

#include "contract/SceneTexts.h"
#include "localfiles/LocalFormats.h"
#include "localfiles/NoNetwork.h"
#include "localfiles/OpenLocal.h"

#include <cpl_error.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <utility>

namespace vlt::linkpath {

namespace {

constexpr int BlockSide = 256;
constexpr std::size_t MaxBlocks = 256;     ///< 128 MiB
constexpr double MaxBlockPixels = 1 << 27; ///< of a block of the file, which is read whole
constexpr double MetresPerDegree = 111320;
constexpr double MetresPerFoot = 0.3048;
constexpr double MetresPerSurveyFoot = 1200.0 / 3937;
constexpr double MaxFromSeaLevelM = 12000; ///< larger than any height on earth
constexpr double EdgePixels = 1e-6;        ///< how far rounding may move a position beyond the edge

constexpr const char *NotPlaced = contract::SceneTextId("MESS_TERRAIN_NOT_PLACED").text().pattern;
constexpr const char *TooLarge = contract::SceneTextId("MESS_TERRAIN_TOO_LARGE").text().pattern;

double metresPerUnit(const char *unit)
{
    constexpr std::array<std::pair<const char *, double>, 9> Units = {
        {{"ft", MetresPerFoot},
         {"foot", MetresPerFoot},
         {"feet", MetresPerFoot},
         {"international foot", MetresPerFoot},
         {"us-ft", MetresPerSurveyFoot},
         {"ftUS", MetresPerSurveyFoot},
         {"US survey foot", MetresPerSurveyFoot},
         {"US survey feet", MetresPerSurveyFoot},
         {"Foot_US", MetresPerSurveyFoot}}};
    for (const auto &[name, metres] : Units) {
        if (unit && EQUAL(unit, name))
            return metres;
    }
    return 1;
}

} // namespace

contract::Opened<std::unique_ptr<TerrainRaster>> TerrainRaster::open(const std::string &path,
                                                                     const TerrainHints &hints)
{
    const CPLErrorHandlerPusher quiet(CPLQuietErrorHandler);
    CPLErrorReset();
    const localfiles::NoNetwork offline;
    if (!localfiles::isLocalFile(path))
        return {nullptr, contract::formatted("MESS_TERRAIN_NOT_LOCAL")};
    GDALDatasetUniquePtr dataset = localfiles::openRasterValues(path);
    if (!dataset)
        return {nullptr, CPLGetLastErrorMsg()};
    std::unique_ptr<TerrainRaster> raster(new TerrainRaster(std::move(dataset)));
    if (const char *fault = raster->prepare(hints))
        return {nullptr, fault};
    return {std::move(raster)};
}

double TerrainRaster::asStored(double value) const
{
    const bool isSingle = m_band->GetRasterDataType() == GDT_Float32;
    return isSingle ? static_cast<double>(static_cast<float>(value)) : value;
}

const char *TerrainRaster::prepare(const TerrainHints &hints)
{
    double toPlace[6];
    const OGRSpatialReference *srs = m_dataset->GetSpatialRef();
    if (!srs || srs->IsEmpty() || srs->IsLocal())
        srs = hints.assumedSrs;
    if (m_dataset->GetRasterCount() < 1 || !srs || m_dataset->GetGeoTransform(toPlace) != CE_None ||
        !GDALInvGeoTransform(toPlace, m_toPixel))
        return NotPlaced;
    m_srs = *srs;
    m_srs.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    m_band = m_dataset->GetRasterBand(1);
    if (GDALDataTypeIsComplex(m_band->GetRasterDataType()))
        return NotPlaced;
    int blockWidth = 0;
    int blockHeight = 0;
    m_band->GetBlockSize(&blockWidth, &blockHeight);
    if (static_cast<double>(blockWidth) * blockHeight > MaxBlockPixels)
        return TooLarge;
    if (srs->IsGeographic())
        m_wholeTurn = 2 * M_PI / srs->GetAngularUnits();
    const double unitM =
        m_wholeTurn > 0 ? MetresPerDegree * 360 / m_wholeTurn : srs->GetLinearUnits();
    m_pixelSizeM =
        unitM * std::min(std::hypot(toPlace[1], toPlace[4]), std::hypot(toPlace[2], toPlace[5]));
    const double toM = metresPerUnit(m_band->GetUnitType());
    m_scale = m_band->GetScale() * toM;
    m_offset = m_band->GetOffset() * toM;
    int hasNoData = 0;
    const double noData = m_band->GetNoDataValue(&hasNoData);
    if (hasNoData)
        m_noData = asStored(noData);
    if (hints.noData)
        m_alsoNoData = asStored(*hints.noData);
    return m_pixelSizeM > 0 ? nullptr : NotPlaced;
}

std::optional<double> TerrainRaster::pixelM(int column, int row)
{
    const std::int64_t number =
        static_cast<std::int64_t>(row / BlockSide) << 32 | column / BlockSide;
    auto found = m_blocks.find(number);
    if (found == m_blocks.end()) {
        if (m_blocks.size() >= MaxBlocks) {
            m_blocks.erase(m_recent.back());
            m_recent.pop_back();
        }
        const int left = column / BlockSide * BlockSide;
        const int top = row / BlockSide * BlockSide;
        const int width = std::min(BlockSide, m_band->GetXSize() - left);
        const int height = std::min(BlockSide, m_band->GetYSize() - top);
        Block block;
        block.values.assign(static_cast<std::size_t>(BlockSide) * BlockSide, std::nan(""));
        const CPLErrorHandlerPusher quiet(CPLQuietErrorHandler); // damaged parts have no heights
        if (m_band->RasterIO(GF_Read, left, top, width, height, block.values.data(), width, height,
                             GDT_Float64, sizeof(double),
                             static_cast<GSpacing>(BlockSide) * sizeof(double), nullptr) != CE_None)
            std::fill(block.values.begin(), block.values.end(), std::nan(""));
        m_recent.push_front(number);
        block.place = m_recent.begin();
        found = m_blocks.emplace(number, std::move(block)).first;
    } else if (found->second.place != m_recent.begin())
        m_recent.splice(m_recent.begin(), m_recent, found->second.place);
    const auto at = static_cast<std::size_t>(row % BlockSide) * BlockSide +
                    static_cast<std::size_t>(column % BlockSide);
    const double value = found->second.values[at];
    if (!isHeight(value))
        return std::nullopt;
    return value * m_scale + m_offset;
}

bool TerrainRaster::isHeight(double stored) const
{
    return std::abs(stored * m_scale + m_offset) <= MaxFromSeaLevelM && stored != m_noData &&
           stored != m_alsoNoData;
}

TerrainExcerpt TerrainRaster::excerpt(double west, double south, double east, double north,
                                      double pixelSize)
{
    double left = HUGE_VAL;
    double top = HUGE_VAL;
    double right = -HUGE_VAL;
    double bottom = -HUGE_VAL;
    for (const auto &[x, y] : {std::pair(west, south), std::pair(west, north),
                               std::pair(east, south), std::pair(east, north)}) {
        const double column = m_toPixel[0] + m_toPixel[1] * x + m_toPixel[2] * y;
        const double row = m_toPixel[3] + m_toPixel[4] * x + m_toPixel[5] * y;
        left = std::min(left, std::floor(column) - 1);
        right = std::max(right, std::ceil(column) + 1);
        top = std::min(top, std::floor(row) - 1);
        bottom = std::max(bottom, std::ceil(row) + 1);
    }
    left = std::max(left, 0.0);
    top = std::max(top, 0.0);
    right = std::min<double>(right, m_band->GetXSize());
    bottom = std::min<double>(bottom, m_band->GetYSize());
    if (!(right > left && bottom > top))
        return {};
    const double step = std::hypot(m_toPixel[1], m_toPixel[4]) * pixelSize; // in pixels of the file
    const auto number = [step](double pixels) {
        return static_cast<int>(
            std::clamp(std::ceil(pixels / std::max(step, 1.0)), 1.0, double(MaxExcerptPixels)));
    };
    const int columns = number(right - left);
    const int rows = number(bottom - top);
    std::vector<float> heights(static_cast<std::size_t>(columns) * static_cast<std::size_t>(rows));
    GDALRasterIOExtraArg how;
    INIT_RASTERIO_EXTRA_ARG(how);
    // an average would mix heights with a value that the file does not declare as no data
    how.eResampleAlg = m_alsoNoData ? GRIORA_NearestNeighbour : GRIORA_Average;
    const CPLErrorHandlerPusher quiet(CPLQuietErrorHandler);
    const localfiles::NoNetwork offline;
    if (m_band->RasterIO(GF_Read, static_cast<int>(left), static_cast<int>(top),
                         static_cast<int>(right - left), static_cast<int>(bottom - top),
                         heights.data(), columns, rows, GDT_Float32, 0, 0, &how) != CE_None)
        return {};
    m_band->FlushCache(false); // a large terrain would fill the library's cache
    for (float &height : heights)
        height = isHeight(asStored(height)) ? static_cast<float>(height * m_scale + m_offset)
                                            : std::numeric_limits<float>::quiet_NaN();
    const double across = columns / (right - left);
    const double down = rows / (bottom - top);
    return {{(m_toPixel[0] - left) * across, m_toPixel[1] * across, m_toPixel[2] * across,
             (m_toPixel[3] - top) * down, m_toPixel[4] * down, m_toPixel[5] * down},
            columns,
            rows,
            std::move(heights)};
}

std::optional<TerrainRaster::Pixel> TerrainRaster::pixelAt(double x, double y) const
{
    const double column = m_toPixel[0] + m_toPixel[1] * x + m_toPixel[2] * y - 0.5;
    const double row = m_toPixel[3] + m_toPixel[4] * x + m_toPixel[5] * y - 0.5;
    const double right = m_band->GetXSize() - 1;
    const double bottom = m_band->GetYSize() - 1;
    constexpr double Rim = 0.5 + EdgePixels;
    if (!(column >= -Rim && row >= -Rim && column <= right + Rim && row <= bottom + Rim))
        return std::nullopt;
    return Pixel{std::clamp(column, 0.0, right), std::clamp(row, 0.0, bottom)};
}

std::optional<double> TerrainRaster::heightM(double x, double y)
{
    std::optional<Pixel> pixel = pixelAt(x, y);
    for (const double turn : {m_wholeTurn, -m_wholeTurn}) { // longitudes jump at the date line
        if (!pixel && turn != 0)
            pixel = pixelAt(x + turn, y);
    }
    if (!pixel)
        return std::nullopt;
    const int left = static_cast<int>(pixel->column);
    const int top = static_cast<int>(pixel->row);
    const double toRight = pixel->column - left;
    const double down = pixel->row - top;
    double sum = 0;
    for (const auto &[c, r, weight] : {std::tuple(left, top, (1 - toRight) * (1 - down)),
                                       std::tuple(left + 1, top, toRight * (1 - down)),
                                       std::tuple(left, top + 1, (1 - toRight) * down),
                                       std::tuple(left + 1, top + 1, toRight * down)}) {
        if (weight <= 0)
            continue;
        const std::optional<double> value = pixelM(c, r);
        if (!value)
            return std::nullopt;
        sum += weight * *value;
    }
    return sum;
}

} // namespace vlt::linkpath
