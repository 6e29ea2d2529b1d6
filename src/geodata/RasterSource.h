#pragma once

#include "geodata/LayerPlacement.h"
#include "geodata/PolygonSource.h"
#include "geodata/Subdatasets.h"
#include "platform/Result.h"

#include <QList>
#include <QStringList>

#include <optional>

class GDALDataset;

namespace vlt::geodata {

/// Properties of a raster that are known without reading its pixels.
struct RasterSummary
{
    int columns = 0;
    int rows = 0;
    int bandCount = 0;
    QStringList bands; ///< description and unit of each band; empty for a band without both
    std::optional<double> noData; ///< of band 1
    bool holdsColors = false;     ///< band 1 is a colour component or has a palette
    bool isColorPicture = false;  ///< three or four bands of colour
    SystemInfo system;
    std::optional<Extent> extent; ///< in that system; none if the raster has no position
    QList<Subdataset> subdatasets;
};

/// Whether a local file is a virtual raster. Such a file only names other files and is not opened.
bool isVirtualRaster(const QString &path);

/// The summary of an open raster.
RasterSummary rasterSummary(GDALDataset &dataset);

/// Reads the summary of a local raster (file or folder) with the formats for local files.
///
/// @param part  name of one of its images, as the raster lists it; empty for the raster itself
/// @par Errors  MESS_ERR_OPEN_RASTERDS, with the path and the library's reason
Result<RasterSummary> readRasterSummary(const QString &path, const QString &part = {});

/// The value that marks missing data in a band of a raster, by its approximate statistics: the
/// minimum if it is below -100, else the maximum if it is at least 9000, else the value that the
/// band declares, else -32768. No file is written beside the raster.
///
/// @param progress  may be empty; false stops the work
/// @param part      name of one of its images; empty for the raster itself
/// @param band      from 1
/// @return          none if the raster does not have the band
/// @par Errors      MESS_ERR_OPEN_RASTERDS, with the path and the library's reason
Stoppable<std::optional<double>> guessedNoData(const QString &path, const Progress &progress,
                                               const QString &part = {}, int band = 1);

} // namespace vlt::geodata
