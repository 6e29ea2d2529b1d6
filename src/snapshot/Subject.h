#pragma once

#include "snapshot/ViewPoint.h"

#include <osg/BoundingBox>

namespace vlt::snapshot {

inline constexpr double DefaultFieldDeg = 30;
inline constexpr double MaxFieldDeg = 70;
inline constexpr double DefaultMargin = 1.08; ///< size of a picture / size of its subject

/// The direction of a picture: unit vectors to its right, upwards, and from the target to the eye.
struct Axes
{
    osg::Vec3d right;
    osg::Vec3d up;
    osg::Vec3d back;
};

/// The axes for an eye in the south-west, slightly above the scene, as in the wizard's preview.
const Axes &defaultAxes();

/// The axes for an eye in the south-west, so high above that streets are visible.
const Axes &steepAxes();

/// The axes for an eye in the south, as high.
///
/// @param northDeg  true north, in degrees clockwise from the y axis
Axes northwardAxes(double northDeg);

/// The axes for an eye beside a line, on its southern side, slightly above.
Axes sideAxes(const osg::Vec3d &along);

/// The axes for an eye straight above, with north up.
Axes downwardAxes(double northDeg);

/// A box that a picture with certain axes shows.
class Subject
{
public:
    /// @param aspect  width of the picture / its height
    /// @param margin  width of the picture / that of the box in it, 1 or more
    Subject(const osg::BoundingBoxd &box, double aspect, double margin = DefaultMargin,
            const Axes &axes = defaultAxes());

    osg::Vec3d centre() const { return m_box.center(); }

    /// Distance in metres from the centre at which the box fills a field of view.
    double distance(double fieldDeg) const;

    /// Field of view that the box fills at a distance in metres.
    double fieldDeg(double distance) const;

    ViewPoint from(double distance, double fieldDeg) const;

private:
    double half(const osg::Vec3d &at) const;

    osg::BoundingBoxd m_box;
    double m_aspect;
    double m_margin;
    Axes m_axes;
};

} // namespace vlt::snapshot
