#pragma once

#include "colormaps/ColorLookup.h"
#include "coverage/CoverageRaster.h"

#include <optional>
#include <string>

namespace vlt::scene {

/// Colours that a document takes from a raster through a colour map; names as written.
struct RasterColors
{
    std::string raster;
    std::string map;
    coverage::Reduction reduction = coverage::Reduction::Minimum;
    bool isStretched = true; ///< the map is laid over the raster's least and greatest value
    colormaps::Interpretation interpretation = colormaps::Interpretation::Interpolation;
    std::string noData; ///< as typed; may be empty
};

/// "#RRGGBB"; nothing for other texts.
std::optional<colormaps::Rgba> parseColor(const std::string &text);

/// "IMAGE;raster;map;reduction;stretched|absolute;interpolation|colorrange[;nodata]" or
/// "cmap:datasource=raster[;nd=nodata];cmap=map;stretchcmap=TRUE|FALSE;interpolatecmap=TRUE|FALSE;
/// band=1;type=reduction"; nothing for other texts.
///
/// What is not escaped there is found from the end: the raster's name may hold semicolons.
std::optional<RasterColors> parseRasterColors(const std::string &text);

} // namespace vlt::scene
