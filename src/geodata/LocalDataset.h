#pragma once

#include "platform/Result.h"

#include <QString>

#include <gdal_priv.h>

namespace vlt::geodata {

/// Opens a file or folder of the local disk for reading, with the formats for local files; band 1
/// of a raster holds the values. The caller collects the library's errors and keeps the library off
/// the network.
///
/// @param kind  GDAL_OF_RASTER or GDAL_OF_VECTOR
/// @return      null if it cannot be opened
GDALDatasetUniquePtr openLocalDataset(const QString &path, unsigned kind);

/// The same for one of the images in a raster that holds several.
///
/// @param part  as the raster lists it; empty for the raster itself
/// @return      null also for an image that the raster does not list
GDALDatasetUniquePtr openLocalRaster(const QString &path, const QString &part);

} // namespace vlt::geodata
