#pragma once

#include "geodata/PolygonSource.h"

#include <optional>

class OGRSpatialReference;

namespace vlt::geodata {

/// What is shown of a coordinate system; null for none.
SystemInfo systemInfo(const OGRSpatialReference *system);

/// An extent as another system sees it.
///
/// @return  nothing where a system is not known or there is no way between the two
std::optional<Extent> extentIn(const SystemInfo &to, const Extent &extent, const SystemInfo &from);

} // namespace vlt::geodata
