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

} // namespace vlt::scene
