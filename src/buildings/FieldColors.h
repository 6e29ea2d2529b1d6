#pragma once

#include "buildings/RasterRanges.h"
#include "colormaps/Legend.h"

namespace vlt::buildings {

/// The range that a colouring by a field of numbers stretches its colour map over: of all its
/// values, two percentiles of them, or the stated one.
///
/// @param document  of the colouring
/// @param progress  may be empty; false stops the work
/// @par Errors      in the language in use
Stoppable<RasterRange> rangeOfField(const RasterColoring &coloring,
                                    const contract::BuildingDocument &document,
                                    const Progress &progress);

/// The texts of a field with their colours: the most frequent ones, then all others.
///
/// @par Errors  as rangeOfField(); the field has no texts
Stoppable<QList<colormaps::LegendKind>> kindsOfField(const RasterColoring &coloring,
                                                     const contract::BuildingDocument &document,
                                                     const Progress &progress);

} // namespace vlt::buildings
