#pragma once

#include "buildings/BuildingLayer.h"
#include "buildings/BuildingsSource.h"
#include "buildings/CountedBuildings.h"
#include "buildings/FileEntry.h"
#include "buildings/RasterColoring.h"
#include "colormaps/Legend.h"
#include "contract/BuildingDocument.h"

#include <optional>

namespace vlt::buildings {

/// The files of a layer of buildings, in one folder.
struct BuildingLayerFiles
{
    QString layer;    ///< "NAME.lay"
    QString document; ///< "NAME.texb"
    QString colorMap; ///< "NAME_MAP.cmap" if the layer has its own; else empty
    /// "MAP_gradient.png", or "NAME_MAP_gradient.png" if the first belongs to another user or shows
    /// other values; empty if no colour map is used
    QString legend;
};

/// A colour map with its name for the legend of a layer.
struct LegendInput
{
    QString name;            ///< name of the colour map that the user sees
    colormaps::ColorMap map; ///< stretched to the values that it is used for
    colormaps::Interpretation interpretation = colormaps::Interpretation::Interpolation;
    QList<colormaps::LegendKind> kinds = {}; ///< in place of a map
    bool isOwnMap = false; ///< the layer gets a file with the stretched map, which it names
};

/// The inputs of both kinds of layers of buildings.
struct BuildingLayerInput
{
    BuildingsSource source;
    contract::BuildingFootprints footprints; ///< but for what the source has
    QString installDir;
    std::optional<LegendInput> legend;
    CountedBuildings counted = {}; ///< for the layer's description
};

/// The names of the files of a layer; the document's name has no suffix ".lay".
BuildingLayerFiles filesOf(const QString &layerPath, const BuildingLayerInput &input);

/// All files that may be written for such a layer.
QStringList possibleFilesOf(const QString &layerPath, const BuildingLayerInput &input);

/// The content that both kinds of documents have.
contract::BuildingDocument documentOf(const BuildingLayerInput &input);

/// The document of a layer with colours from a raster. If they come from a field, it is a full
/// document with the colours of a first run, which other readers show.
contract::BuildingDocument coloredDocument(const BuildingLayerInput &input,
                                           const RasterColoring &walls);

/// Writes a layer of buildings with colours from a raster: its own colour map if it has one,
/// document, legend, layer, in this order.
/// After a failure the files have their former content.
///
/// @param layerPath  of the layer file; the document has the same name
/// @par Errors       those of createTexbLayerFile(), and MESS_CANT_CREATE_LAYER for the document
///                   and the legend, with the path and the system's reason
Result<BuildingLayerFiles> writeColoredLayer(const QString &layerPath,
                                             const BuildingLayerInput &input,
                                             const RasterColoring &walls, platform::Access access);

/// Colours and images of the buildings of a layer.
struct TexturingParameters
{
    contract::BuildingCache cache;
    double texturedVisibilityM = 0;
    QString wallColor; ///< "#RRGGBB"; empty: from `coloring`
    QString roofColor; ///< the same
    RasterColoring coloring;
    contract::TextureMode mode = contract::TextureMode::Roofs;
    std::optional<contract::BuildingTextures> textures; ///< without mode and images
    QList<FileEntry> images;                            ///< only those in use are written
};

/// The full document.
contract::BuildingDocument texturedDocument(const BuildingLayerInput &input,
                                            const TexturingParameters &texturing);

/// Writes a layer with the full document.
Result<BuildingLayerFiles> writeTexturedLayer(const QString &layerPath,
                                              const BuildingLayerInput &input,
                                              const TexturingParameters &texturing,
                                              platform::Access access);

} // namespace vlt::buildings
