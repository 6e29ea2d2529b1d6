#include "landscape/Imagery.h"

#include "contract/SceneTexts.h"
#include "localfiles/LocalFormats.h"
#include "localfiles/NoNetwork.h"
#include "localfiles/OpenLocal.h"

#include <cpl_error.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace vlt::landscape {

namespace {

constexpr int MaxSide = 2048;              ///< of a part, in pixels
constexpr double MaxBlockPixels = 1 << 24; ///< of a block of the file, which is read whole

bool hasLargeBlocks(GDALDataset &file)
{
    int width = 0;
    int height = 0;
    file.GetRasterBand(1)->GetBlockSize(&width, &height);
    return static_cast<double>(width) * height > MaxBlockPixels;
}

unsigned char toByte(double value)
{
    return static_cast<unsigned char>(std::lround(std::clamp(value, 0.0, 255.0)));
}

} // namespace

struct Imagery::Part
{
    localfiles::Reduction of;
    std::vector<unsigned char> rgba; ///< [rows][columns][4]; empty outside the file

    const unsigned char *pixel(int column, int row) const
    {
        const int c = std::clamp(column, 0, of.columns - 1);
        const int r = std::clamp(row, 0, of.rows - 1);
        return rgba.data() +
               4 * (static_cast<std::size_t>(r) * static_cast<std::size_t>(of.columns) +
                    static_cast<std::size_t>(c));
    }

    /// Interpolates between the centres of pixels; nothing outside.
    void color(double column, double row, unsigned char *found) const
    {
        if (!(column >= 0 && row >= 0 && column < of.columns && row < of.rows))
            return;
        const auto left = static_cast<int>(std::floor(column - 0.5));
        const auto top = static_cast<int>(std::floor(row - 0.5));
        const double right = column - 0.5 - left;
        const double down = row - 0.5 - top;
        std::array<double, 4> sum{};
        for (const int below : {0, 1}) {
            for (const int beside : {0, 1}) {
                const unsigned char *of4 = pixel(left + beside, top + below);
                const double weight =
                    (beside ? right : 1 - right) * (below ? down : 1 - down) * of4[3];
                for (std::size_t i = 0; i < 3; ++i)
                    sum[i] += weight * of4[i];
                sum[3] += weight;
            }
        }
        for (std::size_t i = 0; i < 3; ++i)
            found[i] = sum[3] > 0 ? toByte(sum[i] / sum[3]) : 0;
        found[3] = toByte(sum[3]);
    }
};

contract::Opened<std::unique_ptr<Imagery>> Imagery::open(const std::string &path,
                                                         const FrameOnEarth &place)
{
    const CPLErrorHandlerPusher quiet(CPLQuietErrorHandler);
    CPLErrorReset();
    const localfiles::NoNetwork offline;
    if (!localfiles::isLocalFile(path))
        return {nullptr, contract::formatted("MESS_TERRAIN_NOT_LOCAL")};
    GDALDatasetUniquePtr file = localfiles::openRasterPicture(path);
    if (!file)
        return {nullptr, CPLGetLastErrorMsg()};
    double toPlace[6];
    double toPixel[6];
    if (file->GetRasterCount() < 1 || file->GetGeoTransform(toPlace) != CE_None ||
        !GDALInvGeoTransform(toPlace, toPixel))
        return {nullptr, contract::formatted("MESS_IMAGERY_NOT_PLACED")};
    if (GDALDataTypeIsComplex(file->GetRasterBand(1)->GetRasterDataType()))
        return {nullptr, contract::formatted("MESS_SCENE_COMPLEX")};
    if (hasLargeBlocks(*file))
        return {nullptr, contract::formatted("MESS_TERRAIN_TOO_LARGE")};
    const OGRSpatialReference *own = file->GetSpatialRef();
    OGRSpatialReference srs = own && !own->IsEmpty() && !own->IsLocal() ? *own : place.srs;
    srs.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    std::optional<IntoRaster> intoRaster = IntoRaster::make(place, srs);
    if (!intoRaster)
        return {nullptr, contract::formatted("MESS_SCENE_NO_TRANSFORMATION")};
    return {
        std::unique_ptr<Imagery>(new Imagery(std::move(file), *std::move(intoRaster), toPixel))};
}

Imagery::Imagery(GDALDatasetUniquePtr file, IntoRaster intoRaster, const double (&toPixel)[6])
    : m_file(std::move(file))
    , m_picture(*m_file)
    , m_intoRaster(std::move(intoRaster))
{
    std::copy(std::begin(toPixel), std::end(toPixel), m_toPixel);
}

Imagery::Part Imagery::read(const RasterPlaces &places) const
{
    double left = HUGE_VAL;
    double top = HUGE_VAL;
    double right = -HUGE_VAL;
    double bottom = -HUGE_VAL;
    for (const double x : {places.least().x, places.most().x}) {
        for (const double y : {places.least().y, places.most().y}) {
            const double column = m_toPixel[0] + m_toPixel[1] * x + m_toPixel[2] * y;
            const double row = m_toPixel[3] + m_toPixel[4] * x + m_toPixel[5] * y;
            left = std::min(left, column);
            right = std::max(right, column);
            top = std::min(top, row);
            bottom = std::max(bottom, row);
        }
    }
    left = std::max(std::floor(left), 0.0);
    top = std::max(std::floor(top), 0.0);
    right = std::min(std::ceil(right), double(m_file->GetRasterXSize()));
    bottom = std::min(std::ceil(bottom), double(m_file->GetRasterYSize()));
    if (!(right > left && bottom > top))
        return {};
    const double step = std::max(std::hypot(m_toPixel[1], m_toPixel[4]) * places.cellSize(), 1.0);
    const auto number = [step](double pixels) {
        return static_cast<int>(std::clamp(std::ceil(pixels / step), 1.0, double(MaxSide)));
    };
    Part part{{static_cast<int>(left), static_cast<int>(top), static_cast<int>(right - left),
               static_cast<int>(bottom - top), number(right - left), number(bottom - top)},
              {}};
    part.rgba = m_picture.read(part.of);
    return part;
}

std::vector<unsigned char> Imagery::colors(const Square &square, int cells) const
{
    std::vector<unsigned char> found(
        4 * static_cast<std::size_t>(cells) * static_cast<std::size_t>(cells), 0);
    const RasterPlaces places(square, cells, m_intoRaster);
    if (!places.isPlaced())
        return found;
    const Part part = read(places);
    if (part.rgba.empty())
        return found;
    const double across = static_cast<double>(part.of.columns) / part.of.width;
    const double down = static_cast<double>(part.of.rows) / part.of.height;
    unsigned char *cell = found.data();
    for (int row = 0; row < cells; ++row) {
        for (int column = 0; column < cells; ++column, cell += 4) {
            const Place at = places.at(column + 0.5, row + 0.5);
            const double x =
                (m_toPixel[0] + m_toPixel[1] * at.x + m_toPixel[2] * at.y - part.of.left) * across;
            const double y =
                (m_toPixel[3] + m_toPixel[4] * at.x + m_toPixel[5] * at.y - part.of.top) * down;
            part.color(x, y, cell);
        }
    }
    return found;
}

} // namespace vlt::landscape
