#pragma once

#include <gdal_priv.h>

#include <string>

namespace vlt::localfiles {

// These functions use the formats of LocalFormats.h only and return null if a file cannot be
// opened. The caller has checked the name, keeps the library off the network and collects its
// errors. Names are in bytes of the file system.

/// Opens a raster so that band 1 holds its values. Some formats (Northwood grids) otherwise give
/// the bands of a picture of the values before them.
GDALDatasetUniquePtr openRasterValues(const std::string &name);

/// Opens a raster with the bands of its picture.
GDALDatasetUniquePtr openRasterPicture(const std::string &name);

GDALDatasetUniquePtr openVector(const std::string &name);

/// Whether band 1 of a raster holds a colour component or colour indices, hence no heights.
bool holdsColors(GDALDataset &raster);

/// Whether a raster is a picture of three or four bands of colour.
bool isColorPicture(GDALDataset &raster);

/// Whether a file is a virtual raster.
bool isVirtualRaster(const std::string &name);

} // namespace vlt::localfiles
