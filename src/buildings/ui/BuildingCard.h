#pragma once

#include "picking/SceneObjects.h"

#include <QString>

#include <string_view>

namespace vlt::buildings {

/// A page (HTML) about a building of a scene, in the language in use: its number in the source, its
/// height, the ground under it, the value that colours it, and its colours.
///
/// @param legend  of the scene, contract/SceneLegend.h: it names the values
QString buildingCard(const picking::SceneObjects &buildings, std::size_t building,
                     std::string_view legend);

} // namespace vlt::buildings
