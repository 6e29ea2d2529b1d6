#pragma once

#include "batch/BuildingsRequest.h"
#include "batch/StartUp.h"

namespace vlt::batch {

/// What a layer of buildings is written from, every file looked at.
struct BuildingsInputs
{
    buildings::BuildingLayerInput layer;
    buildings::RasterColoring coloring; ///< without a raster where none is asked for
    buildings::TexturedLook look;       ///< of the request, with images where it has textures
    qint64 buildingCount = -1;          ///< -1 where the format would have to count
    QString terrainWarning;             ///< of a terrain that looks like none; else empty
    QStringList files;                  ///< all that are read, none of which may be written
};

/// Opens what the request and the project name and fills in what they leave open.
///
/// @param quiet  without a line on the terminal about long work
/// @par Errors   in the language in use, with the file that cannot be used
Result<BuildingsInputs> readBuildingsInputs(const BuildingsRequest &request,
                                            const Surroundings &surroundings, bool quiet);

} // namespace vlt::batch
