#pragma once

#include "batch/BuildingsHeightOptions.h"
#include "buildings/BuildingLayerFiles.h"
#include "buildings/TextureFolders.h"
#include "buildings/ValuedBuildings.h"

#include <QCommandLineParser>

#include <optional>

namespace vlt::batch {

/// The files of the images on buildings.
struct TextureChoice
{
    QStringList files;    ///< "FILE" or "FILE=HEIGHT"; empty if the template gives them
    QString templateFile; ///< empty if there are no images
    buildings::DataStructure structure = buildings::DataStructure::SameFolder;
    QString filter;
};

/// The values of a command line for a layer of buildings.
struct BuildingsRequest
{
    QString vector; ///< as given; empty for that of the project
    QString output;
    QString layer;       ///< empty for the first one
    QString heightField; ///< empty for the one that the wizard selects
    HeightChoice heights;
    QString terrain; ///< empty for that of the project
    std::optional<QString> terrainNoData;
    contract::BuildingFootprints footprints;
    std::optional<buildings::RasterColoring> image; ///< image, field and colour map as given
    /// None for buildings with the image's colours; without textures for plain buildings. The
    /// textures have no images yet.
    std::optional<buildings::TexturingParameters> texturing;
    TextureChoice textures; ///< for parameters with textures
    std::optional<buildings::ValuesTarget> values;
};

/// The request of the options; options that are not given have their first-run values.
///
/// @par Errors   no key; the text names the option with a wrong value or without the option that it
///               needs.
Result<BuildingsRequest> readBuildingsRequest(const QCommandLineParser &parser);

} // namespace vlt::batch
