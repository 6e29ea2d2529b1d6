#include "coverage/LocalRaster.h"

#include "localfiles/LocalFormats.h"

#include <cpl_error.h>
#include <cpl_string.h>

#include <filesystem>
#include <functional>
#include <string_view>

namespace vlt::coverage {

namespace {

constexpr double MostBlockPixels = 1 << 27; ///< of the file's own blocks, which are read whole

/// What in a name may be the path of a file: between a colon or quotation mark and the next one, or
/// one after that.
///
/// @param use  takes where it begins and its length; true ends the search
bool forEachPath(std::string_view name, const std::function<bool(std::size_t, std::size_t)> &use)
{
    constexpr std::string_view Ends = ":\"";
    for (std::size_t begin = name.find_first_of(Ends); begin != std::string_view::npos;
         begin = name.find_first_of(Ends, begin + 1)) {
        for (std::size_t end = name.size(); end != std::string_view::npos && end > begin + 1;
             end = name.find_last_of(Ends, end - 1)) {
            if (use(begin + 1, end - begin - 1))
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

GDALDatasetUniquePtr openAs(const std::string &name, const char *const *formats)
{
    return GDALDatasetUniquePtr(GDALDataset::Open(
        name.c_str(), GDAL_OF_RASTER | GDAL_OF_READONLY | GDAL_OF_VERBOSE_ERROR, formats));
}

bool lists(GDALDataset &file, const std::string &part)
{
    // all at once: some formats do not tell single items
    char **const items = file.GetMetadata("SUBDATASETS");
    for (int n = 1;; ++n) {
        const std::string key = "SUBDATASET_" + std::to_string(n) + "_NAME";
        const char *name = CSLFetchNameValue(items, key.c_str());
        if (!name)
            return false;
        if (part == name)
            return true;
    }
}

GDALDatasetUniquePtr openPart(const std::string &name)
{
    GDALDatasetUniquePtr part;
    forEachPath(name, [&](std::size_t begin, std::size_t length) {
        const std::string path = name.substr(begin, length);
        if (!localfiles::isLocalDataset(path))
            return false;
        const GDALDatasetUniquePtr file = openAs(path, localfiles::localRasterFormats());
        if (!file || !lists(*file, name))
            return false;
        part = openAs(name, localfiles::localRasterFormats()); // not always that of the file
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
        if (static_cast<double>(width) * height > MostBlockPixels)
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

GDALDatasetUniquePtr openLocalRaster(const std::string &name, std::string *reason)
{
    CPLErrorReset();
    const bool isFile = localfiles::isLocalDataset(name);
    GDALDatasetUniquePtr dataset =
        isFile ? openAs(name, localfiles::localRasterFormats()) : openPart(name);
    std::string why;
    if (!dataset) {
        why = CPLGetLastErrorMsg();
        if (why.empty())
            why = "no local file has this name";
    } else if (hasLargeBlocks(*dataset)) {
        why = "it is stored in blocks that are too large";
        dataset.reset();
    }
    if (reason && !dataset)
        *reason = why;
    return dataset;
}

} // namespace vlt::coverage
