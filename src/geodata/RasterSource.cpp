#include "geodata/RasterSource.h"

#include "geodata/ErrorCollector.h"
#include "geodata/LocalDataset.h"
#include "geodata/SystemInfo.h"
#include "localfiles/NoNetwork.h"
#include "localfiles/OpenLocal.h"

#include <QFile>
#include <QFileInfo>

#include <gdal_pam.h>

#include <algorithm>
#include <array>

namespace vlt::geodata {

namespace {

// A minimum or maximum beyond these is no height of terrain: it marks missing values.
constexpr double MinHeightM = -100;
constexpr double MaxHeightM = 9000;
constexpr double DefaultNoData = -32768;

std::optional<double> declaredNoData(GDALRasterBand &band)
{
    int isDeclared = FALSE;
    const double value = band.GetNoDataValue(&isDeclared);
    return isDeclared ? std::optional(value) : std::nullopt;
}

std::optional<Extent> extentOf(GDALDataset &dataset)
{
    std::array<double, 6> t{};
    if (dataset.GetGeoTransform(t.data()) != CE_None)
        return std::nullopt;
    const double columns = dataset.GetRasterXSize();
    const double rows = dataset.GetRasterYSize();
    const auto [minX, maxX] =
        std::minmax({0.0, columns * t[1], rows * t[2], columns * t[1] + rows * t[2]});
    const auto [minY, maxY] =
        std::minmax({0.0, columns * t[4], rows * t[5], columns * t[4] + rows * t[5]});
    return Extent{t[0] + minX, t[3] + minY, t[0] + maxX, t[3] + maxY};
}

/// The descriptions and units of the bands, which are limited because they are shown in a list.
QStringList bandTexts(GDALDataset &dataset)
{
    constexpr qsizetype MaxLength = 80;
    QStringList texts;
    for (int i = 1; i <= dataset.GetRasterCount(); ++i) {
        GDALRasterBand &band = *dataset.GetRasterBand(i);
        QStringList parts{QString::fromUtf8(band.GetDescription()).simplified(),
                          QString::fromUtf8(band.GetUnitType()).simplified()};
        parts.removeAll(QString());
        texts << parts.join(QStringLiteral(", ")).left(MaxLength);
    }
    return texts;
}

Error cannotOpen(const ErrorCollector &errors, const QString &path)
{
    return {QStringLiteral("MESS_ERR_OPEN_RASTERDS"),
            QStringLiteral("This file can't be open as a raster dataset"), path,
            errors.failure({})};
}

/// Without this the library would store the statistics in a side file.
void keepFromSaving(GDALDataset &dataset)
{
    if (auto *keeping = dynamic_cast<GDALPamDataset *>(&dataset))
        keeping->SetPamFlags(keeping->GetPamFlags() | GPF_NOSAVE);
}

int CPL_STDCALL reportProgress(double share, const char * /*message*/, void *progress)
{
    return (*static_cast<const Progress *>(progress))(share) ? TRUE : FALSE;
}

} // namespace

bool isVirtualRaster(const QString &path)
{
    return localfiles::isVirtualRaster(
        QFile::encodeName(QFileInfo(path).absoluteFilePath()).toStdString());
}

RasterSummary rasterSummary(GDALDataset &dataset)
{
    RasterSummary summary;
    summary.columns = dataset.GetRasterXSize();
    summary.rows = dataset.GetRasterYSize();
    summary.bandCount = dataset.GetRasterCount();
    if (GDALRasterBand *band = summary.bandCount > 0 ? dataset.GetRasterBand(1) : nullptr)
        summary.noData = declaredNoData(*band);
    summary.bands = bandTexts(dataset);
    summary.isColorPicture = localfiles::isColorPicture(dataset);
    summary.holdsColors = localfiles::holdsColors(dataset);
    summary.system = systemInfo(dataset.GetSpatialRef());
    summary.extent = extentOf(dataset);
    summary.subdatasets = subdatasets(dataset);
    return summary;
}

Result<RasterSummary> readRasterSummary(const QString &path, const QString &part)
{
    const ErrorCollector errors;
    const localfiles::NoNetwork offline;
    const GDALDatasetUniquePtr dataset = openLocalRaster(path, part);
    if (!dataset)
        return cannotOpen(errors, path);
    keepFromSaving(*dataset);
    return rasterSummary(*dataset);
}

Stoppable<std::optional<double>> guessedNoData(const QString &path, const Progress &progress,
                                               const QString &part, int number)
{
    const ErrorCollector errors;
    const localfiles::NoNetwork offline;
    const GDALDatasetUniquePtr dataset = openLocalRaster(path, part);
    if (!dataset)
        return cannotOpen(errors, path);
    keepFromSaving(*dataset);
    GDALRasterBand *band =
        number <= dataset->GetRasterCount() ? dataset->GetRasterBand(number) : nullptr;
    if (band == nullptr)
        return Result<std::optional<double>>(std::nullopt);

    bool isStopped = false;
    Progress reported = [&](double share) {
        isStopped = progress && !progress(share);
        return !isStopped;
    };
    double min = 0;
    double max = 0;
    if (band->ComputeStatistics(true, &min, &max, nullptr, nullptr, reportProgress, &reported) !=
        CE_None)
        min = max = 0; // the band has only missing values
    if (isStopped)
        return std::nullopt;
    if (min < MinHeightM)
        return std::optional(min);
    if (max >= MaxHeightM)
        return std::optional(max);
    return std::optional(declaredNoData(*band).value_or(DefaultNoData));
}

} // namespace vlt::geodata
