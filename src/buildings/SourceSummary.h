#pragma once

#include "geodata/PolygonSource.h"
#include "geodata/RasterSource.h"

#include <optional>

namespace vlt::buildings {

/// The text of a field in a list, "HEIGHT (Real)".
QString fieldCaption(const geodata::VectorField &field);

/// The same in the choice of the height; empty for kinds that cannot be
/// chosen.
QString heightCaption(const geodata::VectorField &field);

/// What the user should know about the choice of the height field; empty for nothing.
///
/// @param chosen  name of the chosen field; may be empty
QString heightHint(const geodata::PolygonLayer &layer, const QString &chosen);

/// One line about a layer of buildings: their number, their coordinate system, the size of the
/// area.
///
/// @param extent  none if it is not known
QString layerSummary(const geodata::PolygonLayer &layer,
                     const std::optional<geodata::Extent> &extent);

/// One line about a terrain: its size in pixels, its coordinate system, whether it covers the
/// buildings.
///
/// @param layer   of the buildings; null for none. It is not compared if a coordinate system is not
///                known.
/// @param extent  of the layer
QString terrainSummary(const geodata::RasterSummary &terrain, const geodata::PolygonLayer *layer,
                       const std::optional<geodata::Extent> &extent);

/// One line about an image for buildings: the size of its area, its coordinate system, whether it
/// covers the buildings; or that it has no position.
///
/// @param layer   of the buildings; null if it is not known
/// @param extent  of the layer
QString imageSummary(const geodata::RasterSummary &image, const geodata::PolygonLayer *layer,
                     const std::optional<geodata::Extent> &extent);

} // namespace vlt::buildings
