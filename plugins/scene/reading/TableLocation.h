#pragma once

#include "contract/ConnectionString.h"
#include "plugins/scene/reading/LayerFile.h"

#include <string>
#include <vector>

namespace vlt::scene {

/// Finds the table of a layer.
///
/// @param source       query "site:options,path" or "link:options,path"
/// @param directories  searched for a relative path, in this order
/// @return             the parts of the query, with the absolute path of a local file
/// @throws BadLayer    it is not a query of the layer's kind, or there is no such file
contract::ConnectionString locateTable(const std::string &source, LayerKind kind,
                                       const std::vector<std::string> &directories);

/// The absolute path of a file named in a query; empty if there is no such local file.
std::string locateFile(const std::string &path, const std::vector<std::string> &directories);

} // namespace vlt::scene
