#include "contract/FileSearch.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>

namespace vlt::contract {

namespace fs = std::filesystem;

std::vector<std::string> searchDirectories(const std::string &file, const std::string &project)
{
    std::error_code error;
    const fs::path here = fs::current_path(error);
    const char *current = std::getenv(CurrentProjectVariable);
    std::vector<fs::path> folders;
    for (const std::string &path : {project, std::string(current ? current : ""), file}) {
        if (!path.empty())
            folders.push_back(fs::path(path).parent_path());
    }
    folders.emplace_back(); // the working directory
    std::vector<std::string> directories;
    for (const fs::path &folder : folders) {
        std::string directory = (here / folder).lexically_normal().string();
        if (std::find(directories.begin(), directories.end(), directory) == directories.end())
            directories.push_back(std::move(directory));
    }
    return directories;
}

} // namespace vlt::contract
