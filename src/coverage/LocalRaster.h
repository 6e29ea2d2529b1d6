#pragma once

#include <gdal_priv.h>

#include <string>
#include <vector>

namespace vlt::coverage {

/// The name of a raster with the path of its file made absolute.
///
/// @param name         a file, or a part of one as the geodata library lists it
///                     ("GTIFF_DIR:2:a.tif", "NETCDF:\"a.nc\":level"), in bytes of the file system
/// @param directories  where relative paths are looked for, in this order
/// @return             the name as it is where no directory has the file
std::string locateRaster(const std::string &name, const std::vector<std::string> &directories);

/// What a raster is opened for: its values in band 1, or the bands of a picture.
enum class RasterUse { Values, Picture };

/// Opens a raster of the local disk, or a part of one, through the formats of the local disk. Of
/// parts only those can be opened that a local file itself lists.
///
/// The caller keeps the library off the network and quiet.
///
/// @param name    absolute
/// @param reason  takes why there is none; may be null
/// @return        null where it cannot be opened
GDALDatasetUniquePtr openLocalRaster(const std::string &name, RasterUse use, std::string *reason);

/// Opens a part by the name under which a local file lists it: with that file's absolute path
/// before all else. A file may list what it likes, an address of the network too.
///
/// @return  null where it cannot be opened or the name does not lead to a local file
GDALDatasetUniquePtr openListedPart(const std::string &name);

} // namespace vlt::coverage
