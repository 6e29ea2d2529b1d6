#pragma once

#include "plugins/scene/buildings/Town.h"

#include <osg/Group>

namespace vlt::scene {

/// Reads a building document and makes the scene of it: metres around the middle of the buildings,
/// x east, y north, z up, tiles of the document's size with levels of detail.
///
/// Its descriptions tell what it holds: "centre=X Y", "srs=...", "buildings=N", "leftOut=N".
///
/// @param document  path of the document
/// @param project   path of the project file, for relative names; may be empty
/// @throws BadLayer  naming what is missing or wrong
/// @throws Stopped   by `progress`
osg::ref_ptr<osg::Group> readBuildingScene(const std::string &document, const std::string &project,
                                           Notices &notices, const Progress &progress);

} // namespace vlt::scene
