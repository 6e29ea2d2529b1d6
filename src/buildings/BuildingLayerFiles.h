#pragma once

#include "buildings/BuildingLayer.h"
#include "buildings/BuildingsSource.h"
#include "buildings/FileEntry.h"
#include "buildings/RasterColoring.h"
#include "colormaps/Legend.h"
#include "contract/BuildingDocument.h"

#include <optional>

namespace vlt::buildings {

/// The files of a layer of buildings, beside each other.
struct BuildingLayerFiles
{
    QString layer;    ///< "NAME.lay"
    QString document; ///< "NAME.texb"
    /// "MAP_gradient.png", or "NAME_MAP_gradient.png" where the first is somebody else's or shows
    /// other values; empty where no colour map is used
    QString legend;
};

/// A colour map as the legend of a layer shows it.
struct LegendInput
{
    QString name;            ///< of the colour map, as the user knows it
    colormaps::ColorMap map; ///< laid over the values that it is used for
    colormaps::Interpretation interpretation = colormaps::Interpretation::Interpolation;
};

/// What both kinds of layers of buildings are made of.
struct BuildingLayerInput
{
    BuildingsSource source;
    contract::BuildingFootprints footprints; ///< the source names file, layer and field
    QString installDir;
    std::optional<LegendInput> legend;
};

/// What the files of a layer of this input will be called; a suffix ".lay" is left out of the
/// document's name.
BuildingLayerFiles filesOf(const QString &layerPath, const BuildingLayerInput &input);

/// All paths that writing such a layer may write to.
QStringList possibleFilesOf(const QString &layerPath, const BuildingLayerInput &input);

/// Writes a layer of buildings that a raster colours: document, legend, layer, in this order. After
/// a failure the files are as they were.
///
/// @param layerPath  of the layer file; the document gets its name
/// @par Errors       those of createTexbLayerFile(), MESS_CANT_CREATE_LAYER also for the document
///                   and the legend; with the path and the system's reason
Result<BuildingLayerFiles> writeColoredLayer(const QString &layerPath,
                                             const BuildingLayerInput &input,
                                             const RasterColoring &walls, platform::Access access);

/// The looks of a layer of buildings with images.
struct TexturedLook
{
    contract::BuildingCache cache;
    double texturedVisibilityM = 0;
    QString wallColor; ///< "#RRGGBB" or colorMapColor()
    QString roofColor;
    contract::TextureMode mode = contract::TextureMode::Roofs;
    std::optional<contract::BuildingTextures> textures; ///< the members beside it name mode, images
    QList<FileEntry> images;                            ///< those that are used are written
};

/// The same for the full document.
Result<BuildingLayerFiles> writeTexturedLayer(const QString &layerPath,
                                              const BuildingLayerInput &input,
                                              const TexturedLook &look, platform::Access access);

} // namespace vlt::buildings
