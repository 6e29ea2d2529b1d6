#pragma once

#include <osg/Node>
#include <osg/Vec3>

#include <cstddef>
#include <vector>

namespace vlt::picking {

/// The edges of an object of a scene: the lines at which its triangles meet at an angle, and those
/// at which a triangle ends. Each is a pair of points, in the frame of the scene. Of several
/// representations the one with the most triangles counts; parts that were not drawn yet do not
/// exist. Empty if the object has no triangles.
std::vector<osg::Vec3> edgesOf(osg::Node &scene, std::size_t object);

} // namespace vlt::picking
