#pragma once

#include "plugins/scene/parametric/LinkObject.h"

#include <osg/Group>

#include <cstddef>
#include <vector>

namespace vlt::scene {

/// Links that share drawables: neighbours, so that the renderer can leave out what is not seen.
inline constexpr std::size_t LinksPerTile = 256;

/// Builds lines of sight, seen from everywhere, and Fresnel ellipsoids of all links.
///
/// There are at most five drawables for LinksPerTile / 2 links or more, below a transform that
/// keeps their coordinates small. The more links, the coarser their ellipsoids: up to 990 links
/// have 32 x 64 faces each, and up to 10000 links have 2 million vertices at most; those of far
/// tiles are coarser still or left out where they are less than a pixel wide, and fine ones are
/// made only for tiles that are seen near by. What is invisible (opacity 0) is left out, and so are
/// links whose ends coincide.
osg::ref_ptr<osg::Group> buildLinks(const std::vector<LinkObject> &links, const LinkLook &look);

} // namespace vlt::scene
