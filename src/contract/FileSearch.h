#pragma once

#include <string>
#include <vector>

namespace vlt::contract {

/// Environment variable with the path of the project that is open in the builder.
inline constexpr char CurrentProjectVariable[] = "VLT_CURRENT_PROJECT";

/// The folders in which a file of a relative name is looked for that a layer or a building document
/// names, absolute, in their order: of the project file that the caller names, of the project in
/// CurrentProjectVariable, of the layer or document itself, and the working directory.
///
/// @param file     path of the layer or document
/// @param project  path of a project file; may be empty
std::vector<std::string> searchDirectories(const std::string &file, const std::string &project);

} // namespace vlt::contract
