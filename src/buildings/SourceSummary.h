#pragma once

#include "geodata/PolygonSource.h"
#include "geodata/RasterSource.h"

#include <optional>

namespace vlt::buildings {

/// What a field is called where the height is chosen, "HEIGHT (Real)"; empty for kinds that are not
/// offered.
QString heightCaption(const geodata::VectorField &field);

/// One line on a layer of buildings: how many, in which system, how large an area.
///
/// @param extent  nothing where it is not known
QString layerSummary(const geodata::PolygonLayer &layer,
                     const std::optional<geodata::Extent> &extent);

/// One line on a terrain: its pixels, its system, whether it covers the buildings.
///
/// @param layer   of the buildings; null for none. It is not compared where a system is not known.
/// @param extent  of the layer
QString terrainSummary(const geodata::RasterSummary &terrain, const geodata::PolygonLayer *layer,
                       const std::optional<geodata::Extent> &extent);

} // namespace vlt::buildings
