#pragma once

#include "contract/BuildingColors.h"
#include "coverage/CoverageRaster.h"

#include <optional>

namespace vlt::coverage {

/// A range of a raster with the present size and time of its files; nothing if they are not files.
std::optional<contract::KnownRasterRange> stamped(const CoverageRaster &raster,
                                                  const ValueRange &range);

/// Whether the files of a raster have the size and time of a range that is known of it.
bool isUpToDate(const contract::KnownRasterRange &known, const CoverageRaster &raster);

} // namespace vlt::coverage
