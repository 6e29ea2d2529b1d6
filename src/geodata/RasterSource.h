#pragma once

#include "geodata/LayerPlacement.h"
#include "geodata/PolygonSource.h"
#include "geodata/Subdatasets.h"
#include "platform/Result.h"

#include <QList>
#include <QString>

#include <optional>

namespace vlt::geodata {

/// What is known of a raster without reading its pixels.
struct RasterSummary
{
    int columns = 0;
    int rows = 0;
    int bandCount = 0;
    std::optional<double> noData; ///< of band 1
    bool holdsColors = false;     ///< band 1 is a part of a picture
    SystemInfo system;
    std::optional<Extent> extent; ///< in that system; none where the raster has no place
    QList<Subdataset> subdatasets;
};

/// Whether a local file is a virtual raster: it only names other files and is not opened.
bool isVirtualRaster(const QString &path);

/// Opens a local raster (file or folder) through the formats of the local disk and closes it again.
///
/// @param part  name of one of its images, as the raster lists it; empty for the raster itself
/// @par Errors  MESS_ERR_OPEN_RASTERDS, with the path and the library's reason
Result<RasterSummary> readRasterSummary(const QString &path, const QString &part = {});

/// What stands for missing values in band 1 of a raster, from its approximate statistics: the
/// minimum where it is below -100, else the maximum where it reaches 9000, else the band's own
/// value, else -32768. Nothing is written beside the raster.
///
/// @param progress  may be empty; false stops the work
/// @param part      name of one of its images; empty for the raster itself
/// @par Errors      MESS_ERR_OPEN_RASTERDS, with the path and the library's reason;
///                  MESS_ERR_NO_BANDS
Stoppable<double> guessedNoData(const QString &path, const Progress &progress,
                                const QString &part = {});

} // namespace vlt::geodata
