#include "coverage/LocalRaster.h"

#include "contract/SceneTexts.h"
#include "localfiles/LocalFormats.h"
#include "localfiles/OpenLocal.h"

#include <cpl_error.h>

#include <filesystem>
#include <functional>
#include <string_view>

namespace vlt::coverage {

namespace {

constexpr double MaxBlockPixels = 1 << 27; ///< of a block of the file, which is read whole

/// Visits the parts of a name that may be the path of a file: they lie between two marks (colon,
/// comma, quotation mark) or between a mark and the end.
///
/// @param use  receives the start and length of a part; it returns true to end the search
bool forEachPath(std::string_view name, const std::function<bool(std::size_t, std::size_t)> &use)
{
    constexpr std::size_t Most = 64; // keeps the search short for hostile names
    constexpr std::string_view Marks = ":\",";
    std::vector<std::size_t> marks;
    for (std::size_t at = name.find_first_of(Marks); at != std::string_view::npos;
         at = name.find_first_of(Marks, at + 1)) {
        marks.push_back(at);
        if (marks.size() > Most)
            return false;
    }
    marks.push_back(name.size());
    for (std::size_t first = 0; first < marks.size(); ++first) {
        const std::size_t begin = marks[first] + 1;
        for (std::size_t last = marks.size() - 1; last > first; --last) {
            if (marks[last] > begin && use(begin, marks[last] - begin))
                return true;
        }
    }
    return false;
}

std::string localPathIn(const std::string &directory, std::string_view path)
{
    const std::string whole = (std::filesystem::path(directory) / path).lexically_normal().string();
    return localfiles::isLocalDataset(whole) ? whole : std::string();
}

bool lists(GDALDataset &file, const std::string &part)
{
    // the whole list, because some formats do not give single items
    for (char **item = file.GetMetadata("SUBDATASETS"); item && *item; ++item) {
        const std::string_view text = *item; // SUBDATASET_1_NAME=...
        const std::size_t equals = text.find('=');
        if (equals != std::string_view::npos && text.substr(0, equals).ends_with("_NAME") &&
            text.substr(equals + 1) == part)
            return true;
    }
    return false;
}

GDALDatasetUniquePtr openPart(const std::string &name)
{
    GDALDatasetUniquePtr part;
    forEachPath(name, [&](std::size_t begin, std::size_t length) {
        const std::string path = name.substr(begin, length);
        if (!localfiles::isLocalDataset(path))
            return false;
        const GDALDatasetUniquePtr file = localfiles::openRasterPicture(path);
        if (!file || !lists(*file, name))
            return false;
        part = openListedPart(name);
        return true;
    });
    return part;
}

bool hasLargeBlocks(GDALDataset &dataset)
{
    for (int i = 1; i <= dataset.GetRasterCount(); ++i) {
        int width = 0;
        int height = 0;
        dataset.GetRasterBand(i)->GetBlockSize(&width, &height);
        if (static_cast<double>(width) * height > MaxBlockPixels)
            return true;
    }
    return false;
}

} // namespace

std::string locateRaster(const std::string &name, const std::vector<std::string> &directories)
{
    for (const std::string &directory : directories) {
        if (std::string path = localPathIn(directory, name); !path.empty())
            return path;
    }
    for (const std::string &directory : directories) {
        std::string located;
        forEachPath(name, [&](std::size_t begin, std::size_t length) {
            const std::string path = localPathIn(directory, name.substr(begin, length));
            if (!path.empty() && localfiles::isLocalFile(path))
                located = std::string(name).replace(begin, length, path);
            return !located.empty();
        });
        if (!located.empty())
            return located;
    }
    return name;
}

GDALDatasetUniquePtr openListedPart(const std::string &name)
{
    const std::size_t slash = name.find('/');
    const bool isLocal = forEachPath(name, [&](std::size_t begin, std::size_t length) {
        return begin == slash && localfiles::isLocalDataset(name.substr(begin, length));
    });
    if (isLocal && name.compare(slash, 2, "//") != 0)
        return localfiles::openRasterPicture(name); // its format may differ from the file's
    CPLError(CE_Failure, CPLE_OpenFailed, "%s",
             contract::formatted("MESS_SCENE_NOT_IN_FILE").c_str());
    return nullptr;
}

contract::Opened<GDALDatasetUniquePtr> openLocalRaster(const std::string &name, RasterUse use)
{
    CPLErrorReset();
    const bool isFile = localfiles::isLocalDataset(name);
    GDALDatasetUniquePtr dataset;
    if (!isFile)
        dataset = openPart(name);
    else
        dataset = use == RasterUse::Values ? localfiles::openRasterValues(name)
                                           : localfiles::openRasterPicture(name);
    if (dataset && hasLargeBlocks(*dataset))
        return {nullptr, contract::formatted("MESS_TERRAIN_TOO_LARGE")};
    if (dataset)
        return {std::move(dataset)};
    const std::string why = CPLGetLastErrorMsg();
    return {nullptr, why.empty() ? contract::formatted("MESS_TERRAIN_NOT_LOCAL") : why};
}

} // namespace vlt::coverage
