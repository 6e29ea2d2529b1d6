#pragma once

#include "contract/Opened.h"

#include <gdal_priv.h>

#include <string>
#include <vector>

namespace vlt::coverage {

/// The name of a raster with an absolute path of its file.
///
/// @param name         path of a file, or the name of a part of one as the geodata library lists it
///                     ("GTIFF_DIR:2:a.tif", "NETCDF:\"a.nc\":level"), in bytes of the file system
/// @param directories  searched for relative paths, in this order
/// @return             `name` if no directory has the file
std::string locateRaster(const std::string &name, const std::vector<std::string> &directories);

/// The purpose of opening a raster: its values in band 1, or the bands of a picture.
enum class RasterUse { Values, Picture };

/// Opens a raster of the local disk, or a part of one, with the formats of LocalFormats.h only. A
/// part can be opened only if a local file lists it.
///
/// The caller keeps the library off the network and quiet.
///
/// @param name  with an absolute path
contract::Opened<GDALDatasetUniquePtr> openLocalRaster(const std::string &name, RasterUse use);

/// Opens a part by the name under which a local file lists it. The first path in the name has to be
/// the absolute path of a local file, because a file may list any name, even a network address.
///
/// @return  null if it cannot be opened or the name does not lead to a local file
GDALDatasetUniquePtr openListedPart(const std::string &name);

} // namespace vlt::coverage
