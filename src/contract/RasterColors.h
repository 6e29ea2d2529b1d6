#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vlt::contract {

/// How the pixels under a building become one value.
enum class Reduction { Minimum, Maximum, Average, MostRepresented };
inline constexpr const char *ReductionWords[] = {"minimum", "maximum", "average",
                                                 "mostRepresented"};

/// Colours that a building document takes from a raster through a colour map. Names are bytes in
/// UTF-8, as written.
struct RasterColors
{
    std::string raster;
    std::string map; ///< path of the colour map file
    Reduction reduction = Reduction::Minimum;
    bool isStretched = true;    ///< the map is laid over the raster's minimum and maximum
    bool isInterpolated = true; ///< else ranges of colours
    std::string noData;         ///< as typed; may be empty
};

/// The text that walls have where a raster colours all of the building:
/// "IMAGE;raster;map;reduction;stretched|absolute;interpolation|colorrange[;nodata]".
std::string imageColorText(const RasterColors &colors);

/// The text of walls or roofs of the full document: "cmap:datasource=raster[;nd=nodata];cmap=map;
/// stretchcmap=TRUE|FALSE;interpolatecmap=TRUE|FALSE;band=1;type=reduction".
std::string colorMapColorText(const RasterColors &colors);

/// Takes either text apart; nothing for other texts, and where raster or map are empty.
///
/// Nothing is escaped there, so the parts are found from the end: in the first text the raster's
/// name may hold semicolons.
std::optional<RasterColors> parseRasterColors(std::string_view text);

} // namespace vlt::contract
