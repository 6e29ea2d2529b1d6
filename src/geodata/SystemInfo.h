#pragma once

#include "geodata/PolygonSource.h"

class OGRSpatialReference;

namespace vlt::geodata {

/// What is shown of a coordinate system; null for none.
SystemInfo systemInfo(const OGRSpatialReference *system);

} // namespace vlt::geodata
