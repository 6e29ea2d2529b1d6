#pragma once

#include <osg/Vec2d>

#include <string>
#include <vector>

class OGRSpatialReference;

namespace vlt::scene {

/// Moves places into metres around their middle, x east, y north.
///
/// Places of a projected system are shifted and taken from its unit to metres. Those of a
/// geographic one are projected by azimuthal equidistant projection about the middle on the
/// system's own ellipsoid: true distances and directions from the middle, lengths across within
/// 1e-4 up to 150 km from it. Without a system the numbers are taken as metres.
///
/// @param srs  of the places, x before y; may be null
/// @param places  replaced; NaN where a place cannot be projected
/// @return  the middle, in `srs`: of the rectangle around all places
/// @throws BadLayer  a system that is neither projected nor geographic
osg::Vec2d moveToLocalFrame(const OGRSpatialReference *srs, std::vector<osg::Vec2d> &places);

} // namespace vlt::scene
