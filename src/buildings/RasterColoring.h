#pragma once

#include "buildings/Stretch.h"
#include "contract/RasterColors.h"
#include "geodata/RasterSource.h"

#include <QString>

#include <optional>

namespace vlt::buildings {

using contract::Reduction;

/// The user's choice of colours from a raster, or a field of the footprints, and a colour map.
struct RasterColoring
{
    QString rasterFile;
    QString colorMap; ///< path of the colour map file
    Reduction reduction = Reduction::Minimum;
    bool stretched = true;    ///< the map is stretched over `stretch`
    bool interpolated = true; ///< false for ranges of one colour
    QString noData;           ///< as the user typed it; may be empty
    int band = contract::RasterBand.firstRun;
    QString field = {};  ///< in place of the raster; else empty
    bool isText = false; ///< the field has texts, which get distinct colours without a map
    Stretch stretch = {};
    std::optional<contract::KnownRasterRange> range = {}; ///< for the document; see RasterRange
    bool hasBand = false;                                 ///< the user stated the band
};

/// The colouring as readers know it.
contract::RasterColors rasterColors(const RasterColoring &coloring);

/// Whether the layer needs a copy of the colour map on the values that it is stretched over: the
/// document can only name the range of the raster.
bool needsOwnMap(const RasterColoring &coloring);

/// Whether a raster can color buildings: it has bands and is no picture.
bool isUsable(const geodata::RasterSummary &raster);

/// A band in a list: its number, with its description and unit in brackets.
QString bandText(int band, const QStringList &descriptions);

/// What the next two texts cannot say about the colours.
contract::BuildingColors otherColors(const RasterColoring &coloring);

/// The colour of walls in the document of coloured buildings: "IMAGE;raster;map;...".
QString imageColor(const RasterColoring &coloring);

/// The colour of walls or roofs in the full document: "cmap:datasource=raster;...".
QString colorMapColor(const RasterColoring &coloring);

} // namespace vlt::buildings
