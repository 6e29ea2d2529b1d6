#pragma once

#include "buildings/BuildingLayerFiles.h"
#include "contract/Progress.h"
#include "coverage/CoverageRaster.h"

namespace vlt::buildings {

/// Least and greatest value of a raster, which is read whole.
///
/// @param noData    as typed, may be empty
/// @param progress  may be empty; false stops the work
/// @return          nothing where no pixel has a value
/// @par Errors      MESS_ERR_OPEN_RASTERDS with the path and the reason
Stoppable<std::optional<coverage::ValueRange>>
readCoverageRange(const QString &raster, const QString &noData, const Progress &progress = {});

/// The legend of a colouring.
///
/// @param range  of the raster: where the colouring is stretched, the colour map is laid over it
/// @par Errors   those of colormaps::openColorMap()
Result<LegendInput> legendOf(const RasterColoring &coloring,
                             const std::optional<coverage::ValueRange> &range);

} // namespace vlt::buildings
