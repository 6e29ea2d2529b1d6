#pragma once

#include <osg/Group>

namespace vlt::snapshot {

/// The scene with three lights: one at the eye, a sun behind an eye in the south-west, a soft light
/// from the sky. The viewer's own light has to be off.
osg::ref_ptr<osg::Group> underLight(osg::Node *scene);

/// The background of a scene: a pale sky, brighter towards the ground. It fills the picture for
/// every camera.
osg::ref_ptr<osg::Node> makeSky();

} // namespace vlt::snapshot
