#pragma once

#include "localframe/LocalFrame.h"

namespace vlt::localframe {

/// Directions of true north, in degrees clockwise from the y axis of a frame: the negative meridian
/// convergences of the places. An azimuth plus this value is a direction in the frame. 0 where the
/// system is unknown or a position has no longitude and latitude.
///
/// @param srs        of the frame; may be null
/// @param positions  in the frame
std::vector<double> northDirectionsDeg(const LocalFrame &frame, const OGRSpatialReference *srs,
                                       const std::vector<Place> &positions);

} // namespace vlt::localframe
