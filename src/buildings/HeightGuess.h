#pragma once

#include "geodata/PolygonSource.h"

namespace vlt::buildings {

/// Index of the field that probably has the heights of the buildings: AGL, H, HEIGHT or COLOR, in
/// this order and in upper or lower case; else the second field, or the first if there is only one.
int guessedHeightField(const QList<geodata::VectorField> &fields);

} // namespace vlt::buildings
