#pragma once

#include "batch/BuildingsRequest.h"
#include "batch/StartUp.h"

namespace vlt::batch {

/// The inputs of a layer of buildings; all files have been checked.
struct BuildingsInputs
{
    buildings::BuildingLayerInput layer;
    geodata::PolygonLayer vector;             ///< the layer of the buildings
    buildings::RasterColoring coloring;       ///< without a raster if none is requested
    buildings::TexturingParameters texturing; ///< of the request, with images if it has textures
    QStringList warnings;                     ///< about the height field, its unit and the terrain
    QStringList files; ///< all files that are read and so must not be written
};

/// Opens the files of the request and the project, and chooses the values that the request leaves
/// open.
///
/// @param quiet  without a progress line on the terminal
/// @par Errors   in the language in use, with the file that cannot be used
Result<BuildingsInputs> readBuildingsInputs(const BuildingsRequest &request,
                                            const Surroundings &surroundings, bool quiet);

} // namespace vlt::batch
