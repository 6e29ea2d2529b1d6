#pragma once

#include "buildings/BuildingLayerFiles.h"

namespace vlt::batch {

/// Reads the image and the colour map of the command line and stores their absolute names in
/// `coloring`.
///
/// @param layer     the buildings, without a legend
/// @param quiet     without a progress line on the terminal
/// @param warnings  receives those about the band
/// @return          the legend, stretched to the values that the colour map is used for
/// @par Errors      in the language in use, with the file that cannot be used
Result<buildings::LegendInput> readColoring(buildings::RasterColoring &coloring,
                                            const buildings::BuildingLayerInput &layer, bool quiet,
                                            QStringList &warnings);

} // namespace vlt::batch
