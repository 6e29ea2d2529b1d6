#include "layers/TableLocation.h"

#include "layers/BadLayer.h"

#include <cstdlib>
#include <filesystem>

namespace vlt::scene {

namespace fs = std::filesystem;

connection::ConnectionString locateTable(const std::string &source,
                                         const std::vector<std::string> &directories)
{
    const auto plain = connection::parse(source);
    if (!plain || plain->kind != "site")
        throw BadLayer("the source \"" + source.substr(0, 60) + "\" does not start with \"site:\"");
    if (plain->path.empty())
        throw BadLayer("the source names no table");
    for (const std::string &directory : directories) {
        auto connection = connection::parse(source, directory);
        std::error_code error;
        const fs::path path = (fs::path(directory) / connection->path).lexically_normal();
        if (!fs::is_regular_file(path, error))
            continue;
        connection->path = path.string();
        return *connection;
    }
    std::string text = "the table \"" + plain->path + "\" does not exist";
    if (plain->path.front() != '/') {
        for (std::size_t i = 0; i < directories.size(); ++i)
            text += (i == 0 ? "; looked for in " : ", ") + directories[i];
    }
    throw BadLayer(text);
}

std::vector<std::string> tableDirectories(const std::string &layerFile, const std::string &project)
{
    std::error_code error;
    const fs::path here = fs::current_path(error);
    std::vector<std::string> directories;
    const auto add = [&](const fs::path &path) {
        const std::string directory = (here / path).lexically_normal().string();
        for (const std::string &known : directories) {
            if (known == directory)
                return;
        }
        directories.push_back(directory);
    };
    const auto addParent = [&](const char *file) {
        if (file && *file)
            add(fs::path(file).parent_path());
    };
    addParent(project.c_str());
    addParent(std::getenv("VLT_CURRENT_PROJECT"));
    addParent(layerFile.c_str());
    add({});
    return directories;
}

} // namespace vlt::scene
