#pragma once

#include <osg/MatrixTransform>

namespace vlt::scene {

/// A node whose vertices are relative to `origin`, in its place. Vertices of single precision stay
/// small; optimisers must not write the place into them.
osg::ref_ptr<osg::MatrixTransform> moved(const osg::ref_ptr<osg::Node> &node,
                                         const osg::Vec3d &origin);

} // namespace vlt::scene
