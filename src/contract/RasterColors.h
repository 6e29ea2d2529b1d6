#pragma once

#include "contract/BuildingColors.h"

#include <optional>
#include <string>
#include <string_view>

namespace vlt::contract {

/// How one value is computed from the pixels under a building.
enum class Reduction { Minimum, Maximum, Average, MostRepresented };
inline constexpr const char *ReductionWords[] = {"minimum", "maximum", "average",
                                                 "mostRepresented"};

/// Colours of a building document that come from a raster through a colour map. Names are in UTF-8,
/// as written.
struct RasterColors
{
    std::string raster;
    std::string map; ///< path of the colour map file
    Reduction reduction = Reduction::Minimum;
    bool isStretched = true;    ///< the map covers the raster's minimum to its maximum
    bool isInterpolated = true; ///< false: colour ranges
    std::string noData;         ///< as typed; may be empty

    // What the texts do not have: they are of band 1.
    int band = RasterBand.firstRun;
    std::optional<KnownRasterRange> range = {};
};

/// The text for the walls if a raster colours the whole building:
/// "IMAGE;raster;map;reduction;stretched|absolute;interpolation|colorrange[;nodata]".
std::string imageColorText(const RasterColors &colors);

/// The text for walls or roofs in the full document: "cmap:datasource=raster[;nd=nodata];cmap=map;
/// stretchcmap=TRUE|FALSE;interpolatecmap=TRUE|FALSE;band=1;type=reduction".
std::string colorMapColorText(const RasterColors &colors);

/// Parses either text; nothing for other texts and if the name of the raster or the map is empty.
/// Band and range come from the other colours of the document.
///
/// Nothing is escaped in them, so the parts are searched from the end: in the first text the name
/// of the raster may contain semicolons.
std::optional<RasterColors> parseRasterColors(std::string_view text,
                                              const BuildingColors &others = {});

} // namespace vlt::contract
