#pragma once

#include <gdal_priv.h>

#include <string>

namespace vlt::localfiles {

/// Opens a raster for its values, which band 1 holds: formats that put a picture of the values
/// before them (Northwood grids do) are asked for the values alone.
///
/// The caller has checked the name, keeps the library off the network and collects its errors.
///
/// @param name  in bytes of the file system
/// @return      null where it cannot be opened
GDALDatasetUniquePtr openRasterValues(const std::string &name);

/// Whether band 1 of a raster is a colour of a picture or an index of colours, which no terrain is.
bool holdsColors(GDALDataset &raster);

} // namespace vlt::localfiles
