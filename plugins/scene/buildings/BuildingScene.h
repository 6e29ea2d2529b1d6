#pragma once

#include "plugins/scene/buildings/CityModel.h"

#include <osg/Group>

namespace vlt::scene {

/// Reads a building document and makes its scene, in metres around the centre of the buildings: x
/// east, y north, z up. It consists of tiles with levels of detail; the document gives their size.
///
/// Its descriptions are "centre=X Y", "srs=...", the counts of contract/CityCounts.h, and
/// "core=X Y X Y" if some buildings lie far from all others.
///
/// @param document   path of the document
/// @param project    path of the project file, for relative paths; may be empty
/// @param isDrawn    the program only draws the scene, and finds buildings in it by
///                   contract/SceneObjects.h
/// @throws BadLayer  with a text that names what is missing or wrong
/// @throws Stopped   `progress` stopped the function
osg::ref_ptr<osg::Group> readBuildingScene(const std::string &document, const std::string &project,
                                           Notices &notices, const Progress &progress,
                                           bool isDrawn = false);

} // namespace vlt::scene
