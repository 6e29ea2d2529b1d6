#pragma once

#include "buildings/RasterColoring.h"
#include "contract/BuildingDocument.h"
#include "contract/Progress.h"
#include "coverage/CoverageRaster.h"
#include "platform/Result.h"

#include <memory>
#include <optional>

namespace vlt::buildings {

/// The range of the values that a colour map is stretched over.
struct RasterRange
{
    std::optional<coverage::ValueRange> values; ///< none if there are no values
    /// For the document, so that its readers need not read a large raster; none for others.
    std::optional<contract::KnownRasterRange> known;
};

/// Rasters with fewer pixels are read in a moment; their documents have no range.
inline constexpr double LargeRasterPixels = 10e6;

/// Reads the range that a colouring stretches its colour map over. A raster that is read for it is
/// read once in this process, as long as its files are unchanged. For any thread.
///
/// @param document  of the colouring, for a stretch over the values of the buildings
/// @param progress  may be empty; false stops the work
/// @par Errors      MESS_ERR_OPEN_RASTERDS with the path and the reason; those of the buildings in
///                  the language in use
Stoppable<RasterRange> readRange(const RasterColoring &coloring,
                                 const contract::BuildingDocument &document,
                                 const Progress &progress = {});

/// Opens the raster of a colouring.
///
/// @par Errors  as readRange()
Result<std::shared_ptr<coverage::CoverageRaster>> openRaster(const RasterColoring &coloring);

} // namespace vlt::buildings
