#pragma once

#include "plugins/scene/reading/SceneFrame.h"

#include <osg/Group>

#include <string_view>

namespace vlt::scene {

/// Tells with a scene where its origin is: "centre=X Y" in the table's system, and "srs=...".
void tellFrame(osg::Group &scene, const SceneFrame &frame);

/// Tells a number with a scene, "key=N".
void tellCount(osg::Group &scene, std::string_view key, std::size_t count);

/// Tells that the table holds more than is shown.
void tellCut(osg::Group &scene);

} // namespace vlt::scene
