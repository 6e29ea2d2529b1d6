#pragma once

#include "coverage/CoverageRaster.h"

#include <gdal_priv.h>

#include <optional>
#include <span>

namespace vlt::coverage {

/// A part of a raster, in pixels.
struct RasterWindow
{
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
};

/// Calls a function for all parts of a raster: wide ones, so that a file stored in whole rows is
/// read once.
///
/// @param progress  called before each part; may be empty
/// @return          false if `progress` stopped the function
template<typename Use>
bool forEachWindow(int columns, int rows, const Progress &progress, const Use &use)
{
    constexpr int Width = 4096;
    constexpr int Height = 256;
    for (int top = 0; top < rows; top += Height) {
        const int height = std::min(Height, rows - top);
        for (int left = 0; left < columns; left += Width) {
            const double done = top + static_cast<double>(height) * left / columns;
            if (progress && !progress(done / rows))
                return false;
            use(RasterWindow{left, top, std::min(Width, columns - left), height});
        }
    }
    return true;
}

/// Whether storedRange() knows the data type of a band and all its pixels are valid but for their
/// values.
bool hasStoredRange(GDALRasterBand &band);

/// Minimum and maximum of the stored values of a band that are finite and not among `noData`, read
/// in the band's own data type. Parts that cannot be read have no values.
///
/// @return  nothing if no pixel has a value, or `progress` stopped the function
std::optional<ValueRange> storedRange(GDALRasterBand &band, std::span<const double> noData,
                                      const Progress &progress);

} // namespace vlt::coverage
