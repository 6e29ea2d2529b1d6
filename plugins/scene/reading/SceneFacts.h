#pragma once

#include "plugins/scene/reading/SceneFrame.h"

#include <osg/Group>

#include <string_view>

namespace vlt::scene {

// These functions add a fact of contract/SceneFactKeys.h to the descriptions of a scene.

/// Adds the position of the scene's origin: "centre=X Y" in the table's system, and "srs=...".
void setFrame(osg::Group &scene, const SceneFrame &frame);

/// Adds a number: "key=N".
void setCount(osg::Group &scene, std::string_view key, std::size_t count);

/// Adds that the table has more rows than are shown: "cut".
void setCut(osg::Group &scene);

} // namespace vlt::scene
