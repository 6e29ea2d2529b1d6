#pragma once

#include <osg/MatrixTransform>

namespace vlt::scene {

/// Moves a node, whose vertices are relative to `origin`, to its position. Vertices in single
/// precision need small coordinates; the transform is therefore protected against optimisers, which
/// would apply it to the vertices.
osg::ref_ptr<osg::MatrixTransform> moved(const osg::ref_ptr<osg::Node> &node,
                                         const osg::Vec3d &origin);

} // namespace vlt::scene
