#include "plugins/scene/reading/TableLocation.h"

#include "plugins/scene/reading/BadLayer.h"

#include <filesystem>

namespace vlt::scene {

namespace fs = std::filesystem;

namespace {

std::string fileIn(const std::string &directory, const std::string &path)
{
    std::error_code error;
    const fs::path file = (fs::path(directory) / path).lexically_normal();
    return fs::is_regular_file(file, error) ? file.string() : std::string();
}

} // namespace

contract::ConnectionString locateTable(const std::string &source, LayerKind kind,
                                       const std::vector<std::string> &directories)
{
    const auto tableKind =
        kind == LayerKind::Links ? contract::TableKind::Links : contract::TableKind::Sites;
    const auto plain = contract::parseConnection(source);
    if (!plain || plain->kind != tableKind)
        throw BadLayer("MESS_SCENE_OTHER_SOURCE",
                       {source.substr(0, 60), contract::connectionPrefix(tableKind)});
    if (plain->path.empty())
        throw BadLayer("MESS_SCENE_UNNAMED_TABLE");
    for (const std::string &directory : directories) {
        auto connection = contract::parseConnection(source, directory);
        const std::string path = fileIn(directory, connection->path);
        if (path.empty())
            continue;
        connection->path = path;
        return *connection;
    }
    if (plain->path.starts_with('/'))
        throw BadLayer("MESS_SCENE_NO_TABLE", {plain->path});
    std::string searched;
    for (const std::string &directory : directories)
        searched += (searched.empty() ? "" : ", ") + directory;
    throw BadLayer("MESS_SCENE_NO_TABLE_IN", {plain->path, searched});
}

std::string locateFile(const std::string &path, const std::vector<std::string> &directories)
{
    for (const std::string &directory : directories) {
        std::string found = fileIn(directory, path);
        if (!found.empty())
            return found;
    }
    return {};
}

} // namespace vlt::scene
