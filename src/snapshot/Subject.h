#pragma once

#include "snapshot/ViewPoint.h"

#include <osg/BoundingBox>

namespace vlt::snapshot {

inline constexpr double UsualFieldDeg = 30;
inline constexpr double WidestFieldDeg = 70;
inline constexpr double UsualMargin = 1.08; ///< room around what is to be seen

/// From where a picture is taken: the picture's axes to the right, up, and from the target to the
/// eye.
struct Axes
{
    osg::Vec3d right;
    osg::Vec3d up;
    osg::Vec3d back;
};

/// From the south-west, a little above, as the wizard's preview shows scenes.
const Axes &usualAxes();

/// From the south-west, so far above that one looks into streets.
const Axes &steepAxes();

/// A box as it is seen along axes.
class Subject
{
public:
    /// @param aspect  width of the picture / its height
    /// @param margin  width of the picture / that of the box in it, 1 or more
    Subject(const osg::BoundingBoxd &box, double aspect, double margin = UsualMargin,
            const Axes &axes = usualAxes());

    osg::Vec3d centre() const { return m_box.center(); }

    /// Distance in metres from the centre at which the box fills a field of view.
    double distance(double fieldDeg) const;

    /// Field of view that the box fills from a distance in metres.
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
