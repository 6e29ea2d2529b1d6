#include "localfiles/ReducedRead.h"

#include "localfiles/NoNetwork.h"

#include <cpl_error.h>

#include <algorithm>
#include <cmath>

namespace vlt::localfiles {

namespace {

constexpr double StripBytes = 24e6; ///< of the file, decoded

/// How many pixels of the file in a row are one pixel of the overview that the library reads.
double overviewFactor(GDALRasterBand &band, double reduction)
{
    constexpr double Tolerance = 1.2; // as the library's
    double factor = 1;
    for (int i = 0; i < band.GetOverviewCount(); ++i) {
        GDALRasterBand *overview = band.GetOverview(i);
        const double its = overview ? double(band.GetXSize()) / overview->GetXSize() : 1;
        if (its <= Tolerance * reduction)
            factor = std::max(factor, its);
    }
    return factor;
}

/// Rows of the picture that are read at once.
int rowsOfStrip(GDALDataset &file, int bands, const Reduction &part)
{
    const int pixelBytes = GDALGetDataTypeSizeBytes(file.GetRasterBand(1)->GetRasterDataType());
    const double rowBytes = pixelsToRead(file, part) / part.rows * pixelBytes * bands;
    return static_cast<int>(std::clamp(StripBytes / rowBytes, 1.0, double(part.rows)));
}

} // namespace

double pixelsToRead(GDALDataset &file, const Reduction &part)
{
    const double across = static_cast<double>(part.width) / part.columns;
    const double down = static_cast<double>(part.height) / part.rows;
    const double factor = overviewFactor(*file.GetRasterBand(1), std::min(across, down));
    return static_cast<double>(part.width) * part.height / (factor * factor);
}

bool readReduced(GDALDataset &file, const std::vector<int> &bands, const Reduction &part,
                 GDALRIOResampleAlg how, std::vector<float> &values)
{
    const CPLErrorHandlerPusher quiet(CPLQuietErrorHandler);
    const NoNetwork offline;
    const auto ofBand =
        static_cast<std::size_t>(part.columns) * static_cast<std::size_t>(part.rows);
    values.resize(bands.size() * ofBand);
    const double down = static_cast<double>(part.height) / part.rows;
    const int number = static_cast<int>(bands.size());
    const int strip = rowsOfStrip(file, number, part);
    std::vector<int> asked = bands;
    for (int row = 0; row < part.rows; row += strip) {
        const int rows = std::min(strip, part.rows - row);
        GDALRasterIOExtraArg extra;
        INIT_RASTERIO_EXTRA_ARG(extra);
        extra.eResampleAlg = how;
        extra.bFloatingPointWindowValidity = TRUE;
        extra.dfXOff = part.left;
        extra.dfXSize = part.width;
        extra.dfYOff = part.top + row * down;
        extra.dfYSize = rows * down;
        const int top = static_cast<int>(extra.dfYOff);
        const int bottom = std::min(static_cast<int>(std::ceil(extra.dfYOff + extra.dfYSize)),
                                    part.top + part.height);
        float *to =
            values.data() + static_cast<std::size_t>(row) * static_cast<std::size_t>(part.columns);
        const auto rowBytes = static_cast<GSpacing>(sizeof(float)) * part.columns;
        const CPLErr outcome =
            bands.front() == MaskBand
                ? file.GetRasterBand(1)->GetMaskBand()->RasterIO(
                      GF_Read, part.left, top, part.width, bottom - top, to, part.columns, rows,
                      GDT_Float32, sizeof(float), rowBytes, &extra)
                : file.RasterIO(GF_Read, part.left, top, part.width, bottom - top, to, part.columns,
                                rows, GDT_Float32, number, asked.data(), sizeof(float), rowBytes,
                                static_cast<GSpacing>(sizeof(float) * ofBand), &extra);
        file.FlushCache(false);
        if (outcome != CE_None)
            return false;
    }
    return true;
}

} // namespace vlt::localfiles
