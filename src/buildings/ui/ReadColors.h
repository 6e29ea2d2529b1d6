#pragma once

#include "buildings/BuildingLayerFiles.h"
#include "buildings/RasterColoring.h"

#include <optional>

class QWidget;

namespace vlt::buildings {

/// A colouring with its legend.
struct ReadColors
{
    RasterColoring coloring; ///< with the range for the document
    LegendInput legend;
};

/// Reads the values of a raster, or field, that a colouring and its legend need; a progress bar is
/// shown. None after a message, if the values or the colour map cannot be read, and if the user
/// stops the read.
///
/// @param layer  the buildings, without a legend
std::optional<ReadColors> readColors(QWidget *parent, const RasterColoring &coloring,
                                     const BuildingLayerInput &layer);

} // namespace vlt::buildings
