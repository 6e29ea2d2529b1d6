#pragma once

#include "geodata/PolygonSource.h"

#include <optional>

class OGRSpatialReference;

namespace vlt::geodata {

/// The properties of a coordinate system that are shown.
SystemInfo systemInfo(const OGRSpatialReference *system);

/// Transforms an extent to another system.
///
/// @return  none if a system is not known or there is no transformation between the two
std::optional<Extent> extentIn(const SystemInfo &to, const Extent &extent, const SystemInfo &from);

} // namespace vlt::geodata
