#pragma once

#include "contract/RasterColors.h"

#include <QString>

namespace vlt::buildings {

using contract::Reduction;

/// Colours that come from a raster through a colour map, as the user has chosen them.
struct RasterColoring
{
    QString rasterFile;
    QString colorMap; ///< path of the colour map file
    Reduction reduction = Reduction::Minimum;
    bool stretched = true;    ///< the map is laid over the raster's minimum and maximum
    bool interpolated = true; ///< else ranges of colours
    QString noData;           ///< as typed, may be empty
};

/// The colour of walls in the document of coloured buildings: "IMAGE;raster;map;...".
QString imageColor(const RasterColoring &coloring);

/// The colour of walls or roofs in the full document: "cmap:datasource=raster;...".
QString colorMapColor(const RasterColoring &coloring);

} // namespace vlt::buildings
