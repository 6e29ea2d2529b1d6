#pragma once

#include "plugins/scene/parametric/LinkObject.h"

#include <osg/Group>

#include <cstddef>
#include <vector>

namespace vlt::scene {

/// Maximum number of links in a tile. They are neighbours and share drawables, so that the renderer
/// can skip tiles outside the view.
inline constexpr std::size_t LinksPerTile = 256;

/// Builds the lines of sight, visible at every distance, and the Fresnel ellipsoids of all links.
///
/// A tile has at most five drawables, below a transform that keeps their coordinates small; of more
/// than LinksPerTile links each tile has at least LinksPerTile / 2. With more links the ellipsoids
/// are coarser: those of up to 990 links have 32 x 64 faces each, those of up to 10000 links have
/// at most 2 million vertices together. Ellipsoids in distant tiles are coarser still, or left out
/// if less than a pixel wide; fine ones are made only for tiles near the viewer. Invisible parts
/// (opacity 0) and links whose ends coincide are left out.
osg::ref_ptr<osg::Group> buildLinks(const std::vector<LinkObject> &links,
                                    const LinkAppearance &appearance);

} // namespace vlt::scene
