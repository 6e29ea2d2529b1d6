#pragma once

#include "contract/ConnectionString.h"
#include "plugins/scene/reading/LayerFile.h"

#include <string>
#include <vector>

namespace vlt::scene {

/// Finds the table of a layer.
///
/// @param source  pylon query "site:options,path" or "link:options,path"
/// @param directories  where a relative path may start; the first in which the file exists counts
/// @return  the query taken apart, with an absolute path of a local file
/// @throws BadLayer  no query of the layer's kind, no such file
contract::ConnectionString locateTable(const std::string &source, LayerKind kind,
                                       const std::vector<std::string> &directories);

/// The absolute path of a file that stands in a query; empty where there is no such local file.
std::string locateFile(const std::string &path, const std::vector<std::string> &directories);

/// The directories for a layer file, in their order: of the project file that the caller names, of
/// the one in the environment variable VLT_CURRENT_PROJECT, of the layer file, and the working
/// directory.
///
/// @param project  path of a project file; may be empty
std::vector<std::string> tableDirectories(const std::string &layerFile, const std::string &project);

} // namespace vlt::scene
