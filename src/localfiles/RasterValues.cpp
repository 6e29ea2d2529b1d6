#include "localfiles/RasterValues.h"

#include "localfiles/LocalFormats.h"

#include <array>

namespace vlt::localfiles {

GDALDatasetUniquePtr openRasterValues(const std::string &name)
{
    // "@": formats that do not know the option are not asked
    constexpr std::array<const char *, 2> Options = {"@BAND_COUNT=1", nullptr};
    return GDALDatasetUniquePtr(
        GDALDataset::Open(name.c_str(), GDAL_OF_RASTER | GDAL_OF_READONLY | GDAL_OF_VERBOSE_ERROR,
                          localRasterFormats(), Options.data()));
}

bool holdsColors(GDALDataset &raster)
{
    return raster.GetRasterCount() > 0 &&
           raster.GetRasterBand(1)->GetColorInterpretation() >= GCI_PaletteIndex;
}

} // namespace vlt::localfiles
