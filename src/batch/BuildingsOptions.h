#pragma once

#include "buildings/BuildingLayerFiles.h"
#include "buildings/TextureFolders.h"

#include <QCommandLineParser>

#include <optional>

namespace vlt::batch {

/// The numbers of a layer of buildings, in metres but for the capacity, with their first-run
/// values.
struct BuildingsMeasures
{
    int distance = 2000; ///< up to which buildings are shown
    double tileSize = 250;
    double skirt = 5;
    int texturedDistance = 1000; ///< up to which images are shown
    int cacheCapacity = 100;     ///< elements
    double buffer = 1;
    int dilatation = 1; ///< pixels
};

/// Images on buildings.
struct TextureChoice
{
    QStringList files; ///< "FILE" or "FILE=HEIGHT"
    QString templateFile;
    buildings::DataStructure structure = buildings::DataStructure::SameFolder;
    QString filter;
    buildings::TexturedLook look; ///< without images; ColorMapWord for a colour from the raster
};

/// What stands for a colour that comes from the raster.
inline constexpr char ColorMapWord[] = "colormap";

/// What the command line of a layer of buildings asks for.
struct BuildingsRequest
{
    QString vector; ///< as given; empty: the project's
    QString output;
    QString layer;       ///< empty: the first one
    QString heightField; ///< empty: the one that looks like it
    QString terrain;     ///< empty: the project's
    std::optional<QString> terrainNoData;
    buildings::FootprintSettings footprints;
    std::optional<buildings::RasterColoring> image; ///< image and colour map as given
    std::optional<TextureChoice> textures;          ///< none: coloured buildings
};

/// Makes the parser know the options of a layer of buildings.
void addBuildingsOptions(QCommandLineParser &parser);

/// The request that the options describe; what is not given has its first-run value.
///
/// @par Errors   no key; which option has which wrong value, or lacks its companion.
Result<BuildingsRequest> readBuildingsOptions(const QCommandLineParser &parser);

} // namespace vlt::batch
