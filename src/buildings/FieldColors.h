#pragma once

#include "buildings/BuildingLayerFiles.h"
#include "buildings/RasterRanges.h"
#include "geodata/PolygonSource.h"

namespace vlt::buildings {

/// The fields that can color buildings: those of numbers or texts.
QList<geodata::VectorField> colorFields(const QList<geodata::VectorField> &fields);

/// The range that a colouring by a field of numbers stretches its colour map over: of all its
/// values, two percentiles of them, or the stated one.
///
/// @param document  of the colouring
/// @param progress  may be empty; false stops the work
/// @par Errors      in the language in use; the field has no numbers
Stoppable<RasterRange> rangeOfField(const RasterColoring &coloring,
                                    const contract::BuildingDocument &document,
                                    const Progress &progress);

/// The legend of a field of texts: the most frequent ones with their colours, then all others.
///
/// @par Errors  as rangeOfField(); the field has no texts
Stoppable<LegendInput> legendOfTexts(const RasterColoring &coloring,
                                     const contract::BuildingDocument &document,
                                     const Progress &progress);

} // namespace vlt::buildings
