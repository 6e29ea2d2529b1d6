#pragma once

#include <string>
#include <vector>

namespace vlt::contract {

/// Environment variable with the path of the project that is open in the builder.
inline constexpr char CurrentProjectVariable[] = "VLT_CURRENT_PROJECT";

/// The absolute paths of the folders to which a relative path in a layer or a building document may
/// refer, in the order of the search: the folder of the project file given by the caller, the
/// folder of the project in CurrentProjectVariable, the folder of the layer or document itself, the
/// working directory.
///
/// @param file     path of the layer or document
/// @param project  path of a project file; may be empty
std::vector<std::string> searchDirectories(const std::string &file, const std::string &project);

} // namespace vlt::contract
