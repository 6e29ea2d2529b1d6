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
constexpr double MaxReadPixels =
    4e6; ///< of the file, for a part that the copy in memory could give
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

std::optional<TerrainRaster::Window> TerrainRaster::windowOf(double west, double south, double east,
                                                             double north) const
{
    Window window{HUGE_VAL, HUGE_VAL, -HUGE_VAL, -HUGE_VAL};
    for (const auto &[x, y] : {std::pair(west, south), std::pair(west, north),
                               std::pair(east, south), std::pair(east, north)}) {
        const double column = m_toPixel[0] + m_toPixel[1] * x + m_toPixel[2] * y;
        const double row = m_toPixel[3] + m_toPixel[4] * x + m_toPixel[5] * y;
        window.left = std::min(window.left, std::floor(column) - 1);
        window.right = std::max(window.right, std::ceil(column) + 1);
        window.top = std::min(window.top, std::floor(row) - 1);
        window.bottom = std::max(window.bottom, std::ceil(row) + 1);
    }
    window.left = std::max(window.left, 0.0);
    window.top = std::max(window.top, 0.0);
    window.right = std::min<double>(window.right, m_band->GetXSize());
    window.bottom = std::min<double>(window.bottom, m_band->GetYSize());
    if (!(window.right > window.left && window.bottom > window.top))
        return std::nullopt;
    return window;
}

GDALRIOResampleAlg TerrainRaster::reductionKind() const
{
    // an average would mix heights with a value that the file does not declare as no data
    return m_alsoNoData ? GRIORA_NearestNeighbour : GRIORA_Average;
}

/// The copy in memory if the part would need many pixels of the file, and the copy has enough.
///
/// @param step  wanted pixel size, in pixels of the file
TerrainRaster::Source TerrainRaster::sourceFor(const Window &window, double step)
{
    const int columns = m_band->GetXSize();
    const int rows = m_band->GetYSize();
    const double factor = static_cast<double>(std::max(columns, rows)) / MaxExcerptPixels;
    const auto width = static_cast<int>(window.right - window.left);
    const auto height = static_cast<int>(window.bottom - window.top);
    const auto reduced = [step](int pixels) { return static_cast<int>(std::ceil(pixels / step)); };
    const bool isSmall = factor <= 1 || step < factor ||
                         localfiles::pixelsToRead(*m_dataset, {0, 0, width, height, reduced(width),
                                                               reduced(height)}) < MaxReadPixels;
    if (!isSmall && !m_smallCopy)
        makeSmallCopy(static_cast<int>(std::ceil(columns / factor)),
                      static_cast<int>(std::ceil(rows / factor)));
    if (isSmall || !m_smallCopy)
        return {m_dataset.get(), 1, 1};
    return {m_smallCopy.get(), static_cast<double>(columns) / m_smallCopy->GetRasterXSize(),
            static_cast<double>(rows) / m_smallCopy->GetRasterYSize()};
}

void TerrainRaster::makeSmallCopy(int columns, int rows)
{
    GDALDriver *memory = GetGDALDriverManager()->GetDriverByName("MEM");
    std::vector<float> heights;
    if (!memory ||
        !localfiles::readReduced(*m_dataset, {1},
                                 {0, 0, m_band->GetXSize(), m_band->GetYSize(), columns, rows},
                                 reductionKind(), heights))
        return;
    m_smallCopy.reset(memory->Create("", columns, rows, 1, GDT_Float32, nullptr));
    if (!m_smallCopy)
        return;
    GDALRasterBand &band = *m_smallCopy->GetRasterBand(1);
    if (m_noData)
        band.SetNoDataValue(*m_noData);
    if (band.RasterIO(GF_Write, 0, 0, columns, rows, heights.data(), columns, rows, GDT_Float32, 0,
                      0, nullptr) != CE_None)
        m_smallCopy.reset();
}

/// Nearest pixels in so many rows and columns that few blocks of the file have to be read.
TerrainExcerpt TerrainRaster::roughExcerpt(const Window &window, int columns, int rows) const
{
    constexpr double MaxRoughPixels = 12e6; // in the blocks
    int blockWidth = 0;
    int blockHeight = 0;
    m_band->GetBlockSize(&blockWidth, &blockHeight);
    const double width = window.right - window.left;
    const double height = window.bottom - window.top;
    const double blocks = std::max(MaxRoughPixels / (double(blockWidth) * blockHeight), 4.0);
    const double acrossAll = std::ceil(width / blockWidth);
    double across = columns;
    if (acrossAll > std::sqrt(blocks))
        across = std::min<double>(columns, std::floor(std::sqrt(blocks)));
    const double down = std::min<double>(rows, std::max(blocks / std::min(across, acrossAll), 2.0));
    return read({m_dataset.get(), 1, 1},
                {static_cast<int>(window.left), static_cast<int>(window.top),
                 static_cast<int>(width), static_cast<int>(height), static_cast<int>(across),
                 static_cast<int>(down)},
                GRIORA_NearestNeighbour);
}

TerrainExcerpt TerrainRaster::excerpt(double west, double south, double east, double north,
                                      double pixelSize, bool isRough)
{
    const std::optional<Window> window = windowOf(west, south, east, north);
    if (!window)
        return {};
    const double step = std::max(std::hypot(m_toPixel[1], m_toPixel[4]) * pixelSize, 1.0);
    const auto number = [](double pixels) {
        return static_cast<int>(std::clamp(std::ceil(pixels), 1.0, double(MaxExcerptPixels)));
    };
    const auto width = static_cast<int>(window->right - window->left);
    const auto height = static_cast<int>(window->bottom - window->top);
    const int columns = number(width / step);
    const int rows = number(height / step);
    if (isRough && !m_smallCopy &&
        localfiles::pixelsToRead(*m_dataset, {0, 0, width, height, columns, rows}) > MaxReadPixels)
        return roughExcerpt(*window, columns, rows);
    const Source source = sourceFor(*window, step);
    const double left = std::floor(window->left / source.across);
    const double top = std::floor(window->top / source.down);
    const double right =
        std::min<double>(std::ceil(window->right / source.across), source.file->GetRasterXSize());
    const double bottom =
        std::min<double>(std::ceil(window->bottom / source.down), source.file->GetRasterYSize());
    return read(source,
                {static_cast<int>(left), static_cast<int>(top), static_cast<int>(right - left),
                 static_cast<int>(bottom - top), number((right - left) * source.across / step),
                 number((bottom - top) * source.down / step)},
                reductionKind());
}

TerrainExcerpt TerrainRaster::read(const Source &source, const localfiles::Reduction &part,
                                   GDALRIOResampleAlg how) const
{
    std::vector<float> heights;
    if (!localfiles::readReduced(*source.file, {1}, part, how, heights))
        return {};
    for (float &height : heights)
        height = isHeight(asStored(height)) ? static_cast<float>(height * m_scale + m_offset)
                                            : std::numeric_limits<float>::quiet_NaN();
    const double across = static_cast<double>(part.columns) / part.width;
    const double down = static_cast<double>(part.rows) / part.height;
    const double toColumn = across / source.across;
    const double toRow = down / source.down;
    return {{m_toPixel[0] * toColumn - part.left * across, m_toPixel[1] * toColumn,
             m_toPixel[2] * toColumn, m_toPixel[3] * toRow - part.top * down, m_toPixel[4] * toRow,
             m_toPixel[5] * toRow},
            part.columns,
            part.rows,
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
