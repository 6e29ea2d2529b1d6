#pragma once

#include "buildings/BuildingLayerFiles.h"

namespace vlt::batch {

/// Looks at the image and the colour map that the command line names, whose absolute names
/// `coloring` takes.
///
/// @param quiet  without a line on the terminal about long work
/// @return       the legend, laid over the values that the colour map is used for
/// @par Errors   in the language in use, with the file that cannot be used
Result<buildings::LegendInput> readColoring(buildings::RasterColoring &coloring,
                                            const QString &installDir, bool quiet);

} // namespace vlt::batch
