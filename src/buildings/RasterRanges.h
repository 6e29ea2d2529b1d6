#pragma once

#include "buildings/RasterColoring.h"
#include "contract/Progress.h"
#include "coverage/CoverageRaster.h"
#include "platform/Result.h"

namespace vlt::buildings {

/// The range of the values of a raster.
struct RasterRange
{
    std::optional<coverage::ValueRange> values; ///< none if no pixel has a value
    /// For the document, so that its readers need not read a large raster; none for others.
    std::optional<contract::KnownRasterRange> known;
};

/// Rasters with fewer pixels are read in a moment; their documents have no range.
inline constexpr double LargeRasterPixels = 10e6;

/// Reads the range of a raster; the whole raster is read, unless this was done before in this
/// process and its files are unchanged. For any thread.
///
/// @param coloring  its raster, band and value of no data
/// @param progress  may be empty; false stops the work
/// @par Errors      MESS_ERR_OPEN_RASTERDS with the path and the reason
Stoppable<RasterRange> readRange(const RasterColoring &coloring, const Progress &progress = {});

/// Opens the raster of a colouring.
///
/// @par Errors  as readRange()
Result<std::shared_ptr<coverage::CoverageRaster>> openRaster(const RasterColoring &coloring);

} // namespace vlt::buildings
