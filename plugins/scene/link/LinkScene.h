#pragma once

#include "plugins/scene/parametric/LinkQuery.h"

#include <osg/Group>

namespace vlt::scene {

/// Builds the links of a query and the pylons with their antennas.
osg::ref_ptr<osg::Group> buildLinkScene(const LinkSceneQuery &scene);

} // namespace vlt::scene
