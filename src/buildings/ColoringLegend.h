#pragma once

#include "buildings/BuildingLayerFiles.h"
#include "coverage/CoverageRaster.h"

namespace vlt::buildings {

/// Makes the legend of a colouring.
///
/// @param range  of the raster; a stretched colouring lays the colour map over this range
/// @par Errors   those of colormaps::openColorMap()
Result<LegendInput> legendOf(const RasterColoring &coloring,
                             const std::optional<coverage::ValueRange> &range);

} // namespace vlt::buildings
