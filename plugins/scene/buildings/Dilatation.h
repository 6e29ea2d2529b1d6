#pragma once

#include <osg/Image>

namespace vlt::scene {

/// Lets the colours of an image grow into its see-through pixels, each taking one of its
/// neighbours' as it is, so that no colour appears that was not there. Around that the colours grow
/// by one pixel more which stays see-through: filters that mix it in find no strange colour. The
/// pixels along the four sides stay see-through.
///
/// @param image   red, green, blue, opacity in bytes
/// @param pixels  how far
void dilate(osg::Image &image, int pixels);

} // namespace vlt::scene
