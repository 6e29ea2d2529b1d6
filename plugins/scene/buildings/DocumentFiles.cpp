#include "plugins/scene/buildings/DocumentFiles.h"

#include "contract/BuildingDocument.h"
#include "contract/FileSearch.h"
#include "localfiles/LocalFormats.h"
#include "plugins/scene/reading/BadLayer.h"

#include <cpl_port.h>

#include <filesystem>

namespace vlt::scene {

namespace fs = std::filesystem;

std::string locateDataset(const std::string &name, const std::vector<std::string> &directories)
{
    for (const std::string &directory : directories) {
        if (name.empty())
            break;
        std::string path = (fs::path(directory) / name).lexically_normal().string();
        if (localfiles::isLocalDataset(path))
            return path;
    }
    return {};
}

std::string locateDocument(const std::string &source, const std::string &layer,
                           const std::string &project)
{
    constexpr std::string_view Start = contract::BuildingSourcePrefix;
    if (!EQUALN(source.c_str(), Start.data(), Start.size()))
        throw BadLayer("MESS_SCENE_OTHER_SOURCE", {source.substr(0, 60), Start});
    const std::string name = source.substr(Start.size());
    std::string path = locateDataset(name, contract::searchDirectories(layer, project));
    if (path.empty())
        throw BadLayer("MESS_SCENE_NO_DOCUMENT", {name});
    return path;
}

} // namespace vlt::scene
