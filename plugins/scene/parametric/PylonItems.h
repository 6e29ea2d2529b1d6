#pragma once

#include "plugins/scene/parametric/ParametricQuery.h"
#include "plugins/scene/parametric/PylonObject.h"

namespace vlt::scene {

/// Reads the next three words as x, y and z.
osg::Vec3d readPlace(Words &words);

/// @throws BadQuery  there is no pylon type of this name
PylonType readPylonType(std::string_view text);

/// Reads the items pylon_type, transmitter_scale and lod, which all pylons of a query share, and
/// checks data_folder.
PylonDesign readCommonDesign(const ParametricQuery &query);

/// Reads "X Y Z HEIGHT WIDTH RADIUS SECTORHEIGHT SPACING".
///
/// @param item    name of the value in messages
/// @param common  the values that all pylons share
PylonObject readPylon(const std::string &item, std::string_view text, const PylonDesign &common);

/// Reads "HEIGHT AZIMUTH TILT BEAMWIDTH ANTENNALENGTH rrggbbaa".
Transmitter readTransmitter(const std::string &item, std::string_view text);

/// Reads "HEIGHT AZIMUTH TILT DIAMETER rrggbbaa".
Transmitter readDish(const std::string &item, std::string_view text);

/// @throws BadQuery  for more than MaxTransmitters
void checkTransmitterCount(std::size_t count);

} // namespace vlt::scene
