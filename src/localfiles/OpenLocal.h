#pragma once

#include <gdal_priv.h>

#include <string>

namespace vlt::localfiles {

// Files are opened through the formats of the local disk; null where they cannot be. The caller has
// checked the name, keeps the library off the network and collects its errors. Names are in bytes
// of the file system.

/// A raster for its values, which band 1 holds: formats that put a picture of the values before
/// them (Northwood grids do) are asked for the values alone.
GDALDatasetUniquePtr openRasterValues(const std::string &name);

/// A raster for the picture that it shows.
GDALDatasetUniquePtr openRasterPicture(const std::string &name);

GDALDatasetUniquePtr openVector(const std::string &name);

/// Whether band 1 of a raster is a colour of a picture or an index of colours, which no terrain is.
bool holdsColors(GDALDataset &raster);

/// Whether a file is a virtual raster.
bool isVirtualRaster(const std::string &name);

} // namespace vlt::localfiles
