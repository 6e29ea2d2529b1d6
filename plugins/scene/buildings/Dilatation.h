#pragma once

#include <osg/Image>

namespace vlt::scene {

/// Extends the colours of an image into its transparent pixels. Each pixel gets the colour of one
/// of its neighbours, so that there are no new colours. One more pixel around these gets a colour
/// but stays transparent, so that filters at the border mix in no other colour. The pixels along
/// the four sides of the image stay transparent.
///
/// @param image   red, green, blue, opacity in bytes
/// @param pixels  distance by which the colours are extended
void dilate(osg::Image &image, int pixels);

} // namespace vlt::scene
