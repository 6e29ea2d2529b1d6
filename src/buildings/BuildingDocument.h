#pragma once

#include "buildings/FileEntry.h"
#include "contract/RasterColors.h"

#include <QList>
#include <QString>

#include <optional>

namespace vlt::buildings {

using contract::Reduction;

/// The footprints and how they are extruded.
struct FootprintSettings
{
    QString file; ///< vector dataset
    QString layer;
    QString heightField;
    double tileSize = 0;           ///< metres
    double extrudedVisibility = 0; ///< metres: distance up to which plain buildings are shown
    double skirtHeight = 0;        ///< metres, under the buildings
    bool checkClockwise = false;
};

/// The terrain that the buildings stand on.
struct TerrainSettings
{
    QString file;
    QString noData; ///< as typed
};

/// Colours that come from a raster through a colour map.
struct RasterColoring
{
    QString rasterFile;
    QString colorMap; ///< path of the colour map file
    Reduction reduction = Reduction::Minimum;
    bool stretched = true;    ///< the map is laid over the raster's least and greatest value
    bool interpolated = true; ///< else ranges of colours
    QString noData;           ///< as typed, may be empty
};

/// What is kept of the buildings once they are made.
struct CacheSettings
{
    QString mode; ///< as the document has it
    bool delayedWrite = false;
    int capacity = 0; ///< elements that wait for being written
};

/// How images are laid on the buildings.
struct TexbTextures
{
    QString mode; ///< as the document has it: which part of a building has the image
    QString edgeColor;
    bool forceEdgeCreation = false;
    bool processComplexBuildings = false;
    std::optional<QString> compression; ///< none: not written
    std::optional<double> bufferValue;
    std::optional<double> dilatationValue;
    QString magFilter;
    QList<FileEntry> images; ///< those that are used are written
};

/// Everything of the document of coloured buildings.
struct ColoredTexb
{
    FootprintSettings footprints;
    TerrainSettings terrain;
    RasterColoring walls;
};

/// Everything of the full document.
struct Texb
{
    std::optional<CacheSettings> cache; ///< none: nothing is kept
    FootprintSettings footprints;
    double texturedVisibility = 0; ///< metres: distance up to which images are shown
    QString wallColor;             ///< "#RRGGBB" or colorMapColor()
    QString roofColor;             ///< the same
    TerrainSettings terrain;
    std::optional<TexbTextures> textures; ///< none: plain buildings
};

/// The colour of walls in the document of coloured buildings: "IMAGE;raster;map;...".
QString imageColor(const RasterColoring &coloring);

/// The colour of walls or roofs in the full document: "cmap:datasource=raster;...".
QString colorMapColor(const RasterColoring &coloring);

/// The document of coloured buildings, which keeps nothing. In both documents values stand as they
/// are, without escaping; numbers have 6 significant digits.
QString writeColoredTexbDocument(const ColoredTexb &document);

/// The full document.
QString writeTexbDocument(const Texb &document);

} // namespace vlt::buildings
