#pragma once

#include "geodata/PolygonSource.h"

namespace vlt::buildings {

/// Position, among all fields of a layer, of the one that looks like the height of the buildings:
/// AGL, H, HEIGHT, COLOR in this order, in any case of letters; else the second field, or the first
/// where there is only one.
int guessedHeightField(const QList<geodata::VectorField> &fields);

} // namespace vlt::buildings
