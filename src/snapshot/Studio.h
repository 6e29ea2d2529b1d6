#pragma once

#include <osg/Group>

namespace vlt::snapshot {

/// The scene under light: a headlight, the sun over the viewer's shoulder, soft light from the sky
/// all around. The viewer's own light has to be off.
osg::ref_ptr<osg::Group> underLight(osg::Node *scene);

/// Something to put behind a scene: a light sky, brighter towards the ground. It fills the picture
/// whatever the camera does.
osg::ref_ptr<osg::Node> makeSky();

} // namespace vlt::snapshot
