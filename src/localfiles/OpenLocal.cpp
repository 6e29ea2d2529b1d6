#include "localfiles/OpenLocal.h"

#include "contract/SceneTexts.h"
#include "localfiles/LocalFormats.h"

#include <cpl_error.h>

#include <array>
#include <fstream>
#include <string_view>

namespace vlt::localfiles {

namespace {

/// Whether an XML element begins within the first bytes of a file.
bool startsWithElement(const std::string &name, std::string_view element)
{
    std::array<char, 1024> start{};
    if (!isLocalFile(name))
        return false;
    std::ifstream file(name, std::ios::binary);
    file.read(start.data(), static_cast<std::streamsize>(start.size()));
    const std::string_view text(start.data(), static_cast<std::size_t>(file.gcount()));
    return text.find(element) != std::string_view::npos;
}

bool isVirtualVector(const std::string &name)
{
    return startsWithElement(name, "<OGRVRTDataSource");
}

GDALDatasetUniquePtr openRaster(const std::string &name, const char *const *options)
{
    GDALDatasetUniquePtr raster(
        GDALDataset::Open(name.c_str(), GDAL_OF_RASTER | GDAL_OF_READONLY | GDAL_OF_VERBOSE_ERROR,
                          localRasterFormats(), options));
    if (!raster && isVirtualRaster(name))
        CPLError(CE_Failure, CPLE_OpenFailed, "%s",
                 contract::formatted("MESS_SCENE_VIRTUAL_RASTER").c_str());
    return raster;
}

} // namespace

GDALDatasetUniquePtr openRasterValues(const std::string &name)
{
    // "@" hides the option from formats that do not support it.
    constexpr std::array<const char *, 2> Options = {"@BAND_COUNT=1", nullptr};
    return openRaster(name, Options.data());
}

GDALDatasetUniquePtr openRasterPicture(const std::string &name)
{
    return openRaster(name, nullptr);
}

GDALDatasetUniquePtr openVector(const std::string &name)
{
    GDALDatasetUniquePtr vector(
        GDALDataset::Open(name.c_str(), GDAL_OF_VECTOR | GDAL_OF_READONLY | GDAL_OF_VERBOSE_ERROR,
                          localVectorFormats()));
    if (!vector && (isVirtualVector(name) || isVirtualRaster(name)))
        CPLError(CE_Failure, CPLE_OpenFailed, "%s",
                 contract::formatted(isVirtualVector(name)
                                         ? contract::SceneTextId("MESS_SCENE_VIRTUAL_VECTOR")
                                         : contract::SceneTextId("MESS_SCENE_VIRTUAL_RASTER"))
                     .c_str());
    return vector;
}

bool holdsColors(GDALDataset &raster)
{
    return raster.GetRasterCount() > 0 &&
           raster.GetRasterBand(1)->GetColorInterpretation() >= GCI_PaletteIndex;
}

bool isColorPicture(GDALDataset &raster)
{
    const int bands = raster.GetRasterCount();
    return (bands == 3 || bands == 4) &&
           raster.GetRasterBand(1)->GetColorInterpretation() > GCI_PaletteIndex;
}

bool isVirtualRaster(const std::string &name)
{
    return startsWithElement(name, "<VRTDataset");
}

} // namespace vlt::localfiles
