#pragma once

#include "contract/RasterColors.h"

#include <QString>

namespace vlt::buildings {

using contract::Reduction;

/// The user's choice of colours from a raster and a colour map.
struct RasterColoring
{
    QString rasterFile;
    QString colorMap; ///< path of the colour map file
    Reduction reduction = Reduction::Minimum;
    bool stretched = true;    ///< the map is stretched from the raster's minimum to its maximum
    bool interpolated = true; ///< false for ranges of one colour
    QString noData;           ///< as the user typed it; may be empty
};

/// The colour of walls in the document of coloured buildings: "IMAGE;raster;map;...".
QString imageColor(const RasterColoring &coloring);

/// The colour of walls or roofs in the full document: "cmap:datasource=raster;...".
QString colorMapColor(const RasterColoring &coloring);

} // namespace vlt::buildings
