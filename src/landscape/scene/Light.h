#pragma once

#include <osg/Group>

namespace vlt::landscape {

/// The scene with three lights: one at the eye, the sun, a soft light from the sky. The viewer's
/// own light has to be off.
osg::ref_ptr<osg::Group> underLight(osg::Node *scene);

} // namespace vlt::landscape
