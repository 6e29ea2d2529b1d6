#pragma once

#include <string>
#include <vector>

namespace vlt::localfiles {

/// Names of the installed raster formats that may be opened, with a null at the end: those that
/// read files and folders. Formats that refer to other sources (virtual rasters, web services) and
/// databases on a server are excluded, so that no text in a user's file leads to network access.
/// The function registers the drivers if that has not been done.
const char *const *localRasterFormats();

/// The same for vector formats.
const char *const *localVectorFormats();

/// Whether an absolute path, in bytes of the file system, leads to a regular file of the local
/// disk.
bool isLocalFile(const std::string &absolutePath);

/// The same for a regular file or a folder: some formats keep a dataset in a folder.
bool isLocalDataset(const std::string &absolutePath);

/// The absolute path of a file or folder of the local disk; empty if there is none of this name.
///
/// @param directories  searched for a relative path, in this order
std::string locateDataset(const std::string &name, const std::vector<std::string> &directories);

} // namespace vlt::localfiles
