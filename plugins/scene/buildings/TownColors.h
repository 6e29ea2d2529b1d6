#pragma once

#include "plugins/scene/buildings/Town.h"

#include <string>
#include <vector>

namespace vlt::scene {

/// The colours of buildings by a text of a document.
///
/// "#RRGGBB" is one colour for all; a text of contract/RasterColors.h takes each building's value
/// from a raster and its colour from a colour map.
///
/// Buildings without a value get the map's colour for those, else a light grey. What cannot be used
/// (raster, map, system) leaves all buildings in that grey, with a notice that names it.
///
/// @param directories  where files of relative names are looked for, in this order
/// @return             parallel to town.footprints.buildings
/// @throws Stopped     by `progress`
std::vector<colormaps::Rgba> townColors(const Town &town, const std::string &colorText,
                                        const std::vector<std::string> &directories,
                                        Notices &notices, const Progress &progress);

} // namespace vlt::scene
