#include "plugins/scene/buildings/DocumentFiles.h"

#include "contract/BuildingDocument.h"
#include "contract/FileSearch.h"
#include "plugins/scene/reading/BadLayer.h"

#include <cpl_port.h>

#include <filesystem>

namespace vlt::scene {

namespace fs = std::filesystem;

namespace {

/// Whether a file is in the folder of temporary files itself, where the wizard keeps the layer that
/// it is making.
bool isTemporary(const fs::path &file)
{
    std::error_code fault;
    const fs::path folder = fs::temp_directory_path(fault);
    return !fault && (folder / file.filename()).lexically_normal() == file.lexically_normal();
}

} // namespace

std::string locateDocument(const std::string &source, const std::string &layer,
                           const std::string &project)
{
    constexpr std::string_view Start = contract::BuildingSourcePrefix;
    if (!EQUALN(source.c_str(), Start.data(), Start.size()))
        throw BadLayer("MESS_SCENE_OTHER_SOURCE", {source.substr(0, 60), Start});
    const std::string name = source.substr(Start.size());
    std::string path = locateDataset(name, contract::searchDirectories(layer, project));
    if (path.empty() || isTemporary(path)) {
        const std::string own = name.substr(name.find_last_of("/\\") + 1);
        std::string copied = locateDataset(own, {fs::absolute(layer).parent_path().string()});
        path = copied.empty() ? path : copied;
    }
    if (path.empty())
        throw BadLayer("MESS_SCENE_NO_DOCUMENT", {name});
    return path;
}

} // namespace vlt::scene
