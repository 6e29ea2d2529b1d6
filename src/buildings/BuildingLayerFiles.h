#pragma once

#include "buildings/BuildingLayer.h"
#include "buildings/BuildingsSource.h"
#include "colormaps/Legend.h"

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
    FootprintSettings footprints; ///< file, layer and field are taken from the source
    QString installDir;
    std::optional<LegendInput> legend;
};

/// What the files of a layer of this input will be called; a suffix ".lay" is left out of the
/// document's name.
BuildingLayerFiles filesOf(const QString &layerPath, const BuildingLayerInput &input);

/// All paths that writing such a layer may write to.
QStringList possibleFilesOf(const QString &layerPath, const BuildingLayerInput &input);

/// The file, layer, field of `source` with the measures of `settings`.
FootprintSettings footprintsOf(const BuildingsSource &source, FootprintSettings settings);

/// Writes a layer of buildings that a raster colours: document, legend, layer, in this order. After
/// a failure the files are as they were.
///
/// @param layerPath  of the layer file; the document gets its name
/// @param reason     where not null, takes the system's reason of a file that cannot be written
/// @par Errors       those of createTexbLayerFile(), MESS_CANT_CREATE_LAYER also for the document
///                   and the legend; with the path
Result<BuildingLayerFiles> writeColoredLayer(const QString &layerPath,
                                             const BuildingLayerInput &input,
                                             const RasterColoring &walls, platform::Access access,
                                             QString *reason = nullptr);

/// The looks of a layer of buildings with images.
struct TexturedLook
{
    std::optional<CacheSettings> cache;
    double texturedVisibility = 0; ///< metres
    QString wallColor;             ///< "#RRGGBB" or colorMapColor()
    QString roofColor;
    TexbSubtype subtype = TexbSubtype::Roofs;
    std::optional<TexbTextures> textures; ///< its mode is that of the subtype
};

/// The same for the full document.
Result<BuildingLayerFiles> writeTexturedLayer(const QString &layerPath,
                                              const BuildingLayerInput &input,
                                              const TexturedLook &look, platform::Access access,
                                              QString *reason = nullptr);

/// Words of the full document for what is chosen, in the order in which lists offer them.
inline constexpr const char *CacheModes[] = {"none", "all", "textured", "extruded"};
inline constexpr const char *TextureModes[] = {"roofs", "walls", "storeys"};
inline constexpr const char *Compressions[] = {"none", "arb", "dxt1", "dxt3", "dxt5"};
inline constexpr const char *MagFilters[] = {"none", "linear"};

/// The word of a subtype with images: one of TextureModes.
QString textureModeName(TexbSubtype subtype);

} // namespace vlt::buildings
