#pragma once

#include "buildings/BuildingLayerFiles.h"
#include "contract/Progress.h"
#include "coverage/CoverageRaster.h"

namespace vlt::buildings {

/// Minimum and maximum of a raster; the whole raster is read.
///
/// @param coloring  its raster, band and value of no data
/// @param progress  may be empty; false stops the work
/// @return          none if no pixel has a value
/// @par Errors      MESS_ERR_OPEN_RASTERDS with the path and the reason
Stoppable<std::optional<coverage::ValueRange>> readCoverageRange(const RasterColoring &coloring,
                                                                 const Progress &progress = {});

/// Makes the legend of a colouring.
///
/// @param range  of the raster; a stretched colouring lays the colour map over this range
/// @par Errors   those of colormaps::openColorMap()
Result<LegendInput> legendOf(const RasterColoring &coloring,
                             const std::optional<coverage::ValueRange> &range);

} // namespace vlt::buildings
