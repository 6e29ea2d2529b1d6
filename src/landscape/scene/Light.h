#pragma once

#include <osg/Group>

namespace vlt::landscape {

/// Three lights: one at the eye, the sun, a soft light from the sky. The viewer's own light has to
/// be off.
///
/// @param lit  state of what the lights are for
osg::ref_ptr<osg::Group> makeLights(osg::StateSet &lit);

/// The scene with these lights.
osg::ref_ptr<osg::Group> underLight(osg::Node *scene);

} // namespace vlt::landscape
