#pragma once

#include "buildings/BuildingLayerFiles.h"
#include "buildings/TextureFolders.h"

#include <QCommandLineParser>

#include <optional>

namespace vlt::batch {

/// Where the images on buildings are found.
struct TextureChoice
{
    QStringList files;    ///< "FILE" or "FILE=HEIGHT"; empty: by the template
    QString templateFile; ///< empty where there are no images
    buildings::DataStructure structure = buildings::DataStructure::SameFolder;
    QString filter;
};

/// What the command line of a layer of buildings asks for.
struct BuildingsRequest
{
    QString vector; ///< as given; empty: the project's
    QString output;
    QString layer;       ///< empty: the first one
    QString heightField; ///< empty: the one that looks like it
    QString terrain;     ///< empty: the project's
    std::optional<QString> terrainNoData;
    contract::BuildingFootprints footprints;
    std::optional<buildings::RasterColoring> image; ///< image and colour map as given
    /// None: buildings that the image colours. Without textures: plain ones. Its textures have no
    /// images yet, its colours may be ColorMapWord.
    std::optional<buildings::TexturedLook> look;
    TextureChoice textures; ///< of a look with textures
};

/// The request that the options describe; what is not given has its first-run value.
///
/// @par Errors   no key; which option has which wrong value, or lacks its companion.
Result<BuildingsRequest> readBuildingsRequest(const QCommandLineParser &parser);

} // namespace vlt::batch
