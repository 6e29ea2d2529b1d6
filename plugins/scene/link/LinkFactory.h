#pragma once

#include "plugins/scene/link/LinkZones.h"
#include "plugins/scene/parametric/LinkObject.h"

#include <osg/Group>

#include <cstddef>
#include <optional>
#include <vector>

namespace vlt::scene {

/// Maximum number of links in a tile. They are neighbours and share drawables, so that the renderer
/// can skip tiles outside the view.
inline constexpr std::size_t LinksPerTile = 256;

/// The Fresnel ellipsoid of a link, in the coordinates of its ends; nothing if none is drawn.
std::optional<Ellipsoid> zoneOf(const LinkObject &link, const LinkAppearance &appearance);

/// Builds the lines of sight, visible at every distance, and the Fresnel ellipsoids of all links.
///
/// Of more than LinksPerTile links each tile has at least LinksPerTile / 2; a tile is below a
/// transform that keeps its coordinates small. LinkZones.h describes how ellipsoids are drawn.
/// Invisible parts (opacity 0) and links whose ends coincide are left out.
osg::ref_ptr<osg::Group> buildLinks(const std::vector<LinkObject> &links,
                                    const LinkAppearance &appearance);

} // namespace vlt::scene
