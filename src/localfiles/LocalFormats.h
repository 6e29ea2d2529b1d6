#pragma once

#include <string>

namespace vlt::localfiles {

/// The raster formats of the installed geodata library that are opened, null at the end: those that
/// read files and folders. Formats that describe sources elsewhere (virtual rasters, web services)
/// and databases behind a server are left out, so that no text of a user's file leads to the
/// network. The drivers are registered first where nobody did.
const char *const *localRasterFormats();

/// The same for vector formats.
const char *const *localVectorFormats();

/// Whether an absolute path, in bytes of the file system, names a regular file of the local disk.
bool isLocalFile(const std::string &absolutePath);

/// The same for a regular file or a folder: some formats keep a dataset in a folder.
bool isLocalDataset(const std::string &absolutePath);

} // namespace vlt::localfiles
