#pragma once

#include "connection/ConnectionString.h"

#include <string>
#include <vector>

namespace vlt::scene {

/// Finds the table of a layer.
///
/// @param source  pylon query "site:options,path"
/// @param directories  where a relative path may start; the first in which the file exists counts
/// @return  the query taken apart, with an absolute path of a local file
/// @throws BadLayer  no "site:" query, no such file
connection::ConnectionString locateTable(const std::string &source,
                                         const std::vector<std::string> &directories);

/// The directories for a layer file, in their order: of the project file that the caller names, of
/// the one in the environment variable VLT_CURRENT_PROJECT, of the layer file, and the working
/// directory.
///
/// @param project  path of a project file; may be empty
std::vector<std::string> tableDirectories(const std::string &layerFile, const std::string &project);

} // namespace vlt::scene
