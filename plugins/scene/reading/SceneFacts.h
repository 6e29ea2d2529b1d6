#pragma once

#include "contract/SceneLegend.h"
#include "plugins/scene/reading/SceneFrame.h"

#include <osg/Group>

#include <string>
#include <string_view>
#include <vector>

namespace vlt::scene {

// These functions add a fact of contract/SceneFactKeys.h to the descriptions of a scene.

/// Adds the position of the scene's origin: "centre=X Y" in the table's system, and "srs=..."; the
/// system is also a value of contract/ScenePlace.h.
void setFrame(osg::Group &scene, const SceneFrame &frame);

/// Adds a number: "key=N".
void setCount(osg::Group &scene, std::string_view key, std::size_t count);

/// Adds that the table has more rows than are shown: "cut".
void setCut(osg::Group &scene);

/// Adds the height of the ground and the terrain, as values of contract/ScenePlace.h.
///
/// @param lowestM  of all feet, metres above sea level
/// @param terrain  path; may be empty
/// @param noData   of the terrain, beside the file's own; may be empty
void setGround(osg::Group &scene, double lowestM, const std::string &terrain,
               const std::string &noData = {});

/// Adds the legend, a value of contract/SceneLegend.h; none without rows.
void setLegend(osg::Group &scene, const std::vector<contract::legend::Row> &rows);

} // namespace vlt::scene
