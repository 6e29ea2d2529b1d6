#include "plugins/scene/buildings/DocumentFiles.h"

#include "localfiles/LocalFormats.h"
#include "plugins/scene/reading/BadLayer.h"

#include <cpl_port.h>

#include <cstdlib>
#include <filesystem>

namespace vlt::scene {

namespace fs = std::filesystem;

std::vector<std::string> documentDirectories(const std::string &document,
                                             const std::string &project)
{
    std::error_code error;
    const fs::path here = fs::current_path(error);
    std::vector<std::string> directories;
    const char *current = std::getenv("VLT_CURRENT_PROJECT");
    for (const std::string &file : {document, project, std::string(current ? current : "")}) {
        if (!file.empty())
            directories.push_back((here / file).parent_path().lexically_normal().string());
    }
    return directories;
}

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
    constexpr std::string_view Start = "TEXB:";
    if (!EQUALN(source.c_str(), Start.data(), Start.size()))
        throw BadLayer("the source \"" + source.substr(0, 60) + "\" does not start with \"TEXB:\"");
    const std::string name = source.substr(Start.size());
    std::string path = locateDataset(name, documentDirectories(layer, project));
    if (path.empty())
        throw BadLayer("the building document \"" + name + "\" does not exist");
    return path;
}

} // namespace vlt::scene
