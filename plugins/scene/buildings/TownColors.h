#pragma once

#include "plugins/scene/buildings/Town.h"

#include <string>
#include <vector>

namespace vlt::scene {

/// The colours of buildings by a text of a document.
///
/// "#RRGGBB" is one colour for all. "IMAGE;raster;map;reduction;stretched|absolute;
/// interpolation|colorrange[;nodata]" and "cmap:datasource=raster[;nd=nodata];cmap=map;
/// stretchcmap=TRUE|FALSE;interpolatecmap=TRUE|FALSE;band=1;type=reduction" take each building's
/// value from a raster and its colour from a colour map, which "stretched" lays over the raster's
/// least and greatest value. Raster and map names may hold semicolons only in the raster's name of
/// the first form.
///
/// Buildings without a value get the map's colour for those, else a light grey. What cannot be used
/// (raster, map, system) leaves all buildings in that grey, with a notice that names it.
///
/// @param directories  where files of relative names are looked for, in this order
/// @return             parallel to town.footprints.buildings; empty where `progress` stopped it
std::vector<colormaps::Rgba> townColors(const Town &town, const std::string &colorText,
                                        const std::vector<std::string> &directories,
                                        Notices &notices, const Progress &progress);

} // namespace vlt::scene
