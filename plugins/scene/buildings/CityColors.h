#pragma once

#include "contract/BuildingDocument.h"
#include "plugins/scene/buildings/CityModel.h"

#include <string>
#include <vector>

namespace vlt::scene {

/// The colours of buildings for a colour text of a document.
///
/// "#RRGGBB" is one colour for all buildings. A text of contract/RasterColors.h names a raster with
/// the values of buildings and a colour map with the colours of values; `others` has its band.
///
/// Buildings without a value get the map's "no data" colour, else a light grey. If the raster, the
/// map or the system cannot be used, all buildings get that grey, and a notice gives the reason.
///
/// @param city         receives the number of features without a value in its counts, and the rows
///                     of its legend
/// @param directories  searched for relative paths, in this order
/// @return             parallel to city.footprints.buildings
/// @throws Stopped     `progress` stopped the function
std::vector<colormaps::Rgba> townColors(CityModel &city, const std::string &colorText,
                                        const contract::BuildingColors &others,
                                        const std::vector<std::string> &directories,
                                        Notices &notices, const Progress &progress);

/// The colours of buildings by the field that the document names: of its numbers through the colour
/// map, or one for each of the most frequent texts and grey for the others.
///
/// Buildings without a value are treated as above.
///
/// @throws Stopped  `progress` stopped the function
std::vector<colormaps::Rgba> fieldColors(CityModel &city,
                                         const contract::BuildingDocument &document,
                                         const std::vector<std::string> &directories,
                                         Notices &notices, const Progress &progress);

} // namespace vlt::scene
