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
/// The items may stand in any order; metres, degrees, per cent. A beam width or antenna length of 0
/// stands for the usual one. The data folder is accepted and not needed.
///
/// @throws BadQuery  naming the item that cannot be used and its value
PylonObject parsePylonQuery(std::string_view url);

} // namespace vlt::scene
