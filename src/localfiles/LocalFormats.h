#pragma once

#include <string>

namespace vlt::localfiles {

/// The raster formats that are opened, null at the end: those that describe other sources (virtual
/// rasters, web services) are left out, so that no text of a user's file leads to the network.
const char *const *localRasterFormats();

/// The same for vector formats.
const char *const *localVectorFormats();

/// Whether an absolute path, in bytes of the file system, names a regular file of the local disk.
bool isLocalFile(const std::string &absolutePath);

} // namespace vlt::localfiles
