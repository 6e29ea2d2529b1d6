#pragma once

#include "city/FootprintReader.h"
#include "contract/BuildingDocument.h"

namespace vlt::city {

/// Counts what a scene of a document would draw, draw with a substitute and leave out, without
/// making it. Colours count only if they come from a raster: whether a building has a value.
///
/// @param directories  searched for relative paths, in this order
/// @param notices      receives those of readCityInputs() and of the raster
/// @throws BadLayer    the footprints cannot be used
/// @throws Stopped     `progress` stopped the function
contract::CityCounts countCity(const contract::BuildingDocument &document,
                               const std::vector<std::string> &directories, Notices &notices,
                               const Progress &progress);

} // namespace vlt::city
