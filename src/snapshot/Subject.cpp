#include "snapshot/Subject.h"

#include <algorithm>
#include <cmath>

namespace vlt::snapshot {

namespace {

constexpr double NarrowestFieldDeg = 0.5;
constexpr double MinDistanceM = 1;

constexpr double SlightRise = 0.32;
constexpr double SteepRise = 0.65;

Axes axesFrom(double x, double y, double rise)
{
    Axes axes;
    axes.back = osg::Vec3d(x, y, rise);
    axes.back.normalize();
    axes.right = osg::Vec3d(osg::Z_AXIS) ^ axes.back;
    axes.right.normalize();
    axes.up = axes.back ^ axes.right;
    return axes;
}

} // namespace

const Axes &defaultAxes()
{
    static const Axes axes = axesFrom(-0.55, -0.77, SlightRise);
    return axes;
}

const Axes &steepAxes()
{
    static const Axes axes = axesFrom(-0.55, -0.77, SteepRise);
    return axes;
}

Axes northwardAxes(double northDeg)
{
    const double north = osg::DegreesToRadians(northDeg);
    return axesFrom(-std::sin(north), -std::cos(north), SteepRise);
}

Axes sideAxes(const osg::Vec3d &along)
{
    osg::Vec3d across(along.y(), -along.x(), 0);
    if (across.normalize() <= 0)
        return defaultAxes();
    return across.y() > 0 ? axesFrom(-across.x(), -across.y(), SlightRise)
                          : axesFrom(across.x(), across.y(), SlightRise);
}

Axes downwardAxes(double northDeg)
{
    const double north = osg::DegreesToRadians(northDeg);
    return {osg::Vec3d(std::cos(north), -std::sin(north), 0),
            osg::Vec3d(std::sin(north), std::cos(north), 0), osg::Vec3d(0, 0, 1)};
}

Subject::Subject(const osg::BoundingBoxd &box, double aspect, double margin, const Axes &axes)
    : m_box(box)
    , m_aspect(aspect)
    , m_margin(margin)
    , m_axes(axes)
{}

double Subject::distance(double fieldDeg) const
{
    const double slope = std::tan(osg::DegreesToRadians(fieldDeg) / 2) / m_margin;
    double distance = MinDistanceM;
    for (unsigned corner = 0; corner < 8; ++corner) {
        const osg::Vec3d at = m_box.corner(corner) - centre();
        distance = std::max(distance, at * m_axes.back + half(at) / slope);
    }
    return distance;
}

double Subject::fieldDeg(double distance) const
{
    double slope = 0;
    for (unsigned corner = 0; corner < 8; ++corner) {
        const osg::Vec3d at = m_box.corner(corner) - centre();
        const double depth = std::max(distance - at * m_axes.back, MinDistanceM);
        slope = std::max(slope, m_margin * half(at) / depth);
    }
    return std::clamp(osg::RadiansToDegrees(2 * std::atan(slope)), NarrowestFieldDeg, MaxFieldDeg);
}

ViewPoint Subject::from(double distance, double fieldDeg) const
{
    return {centre() + m_axes.back * distance, centre(), fieldDeg, m_axes.up};
}

/// Half the height in metres of a picture that just contains a point, given relative to the centre.
double Subject::half(const osg::Vec3d &at) const
{
    return std::max(std::abs(at * m_axes.up), std::abs(at * m_axes.right) / m_aspect);
}

} // namespace vlt::snapshot
