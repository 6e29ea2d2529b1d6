#pragma once

#include "plugins/scene/parametric/PylonObject.h"

#include <string_view>

namespace vlt::scene {

/// Reads the query of one pylon:
///
///     inline://parametric/query?object=pylon&data_folder=PATH&pylon_type=TYPE
///     &pylon=X Y Z HEIGHT WIDTH RADIUS SECTORHEIGHT SPACING
///     &transmitter=HEIGHT AZIMUTH TILT BEAMWIDTH ANTENNALENGTH rrggbbaa   (0 to MaxTransmitters)
///     &transmitter_scale=PERCENT&lod=SYMBOLIC REALISTIC.inlinepylonurl
///
/// The items may be in any order. Units are metres, degrees and per cent. A beam width or antenna
/// length of 0 means the default. The data folder is accepted but not used.
///
/// @throws BadQuery  An item is invalid; the text names it and its value.
PylonObject parsePylonQuery(std::string_view url);

} // namespace vlt::scene
