#include "preview/VltTrackBall.h"

#include <osg/View>

#include <algorithm>
#include <cmath>

namespace {

constexpr double DemoDegPerSecond = 20;
constexpr double MaxStepS = 0.1; // otherwise a hidden view would jump when it is visible again
constexpr double SouthWestDeg = 215.5; // azimuth of the camera
constexpr double MinDistanceM = 0.5;
constexpr double MaxDistanceM = 1e8;
constexpr double ZoomPerNotch = 0.12;
constexpr double Notch = 120; // one notch of the wheel, in eighths of a degree

constexpr double MinElevationDeg = -5; ///< a little below the horizon, to look up at a mast
constexpr double MaxElevationDeg = 90;
const osg::Vec3d Upwards(0, 0, 1);   // in double precision, unlike the library's axes
constexpr double FarthestPlace = 20; ///< under the pointer, in distances of the camera

/// The horizontal direction in which a camera looks, also from straight above.
osg::Vec3d headingOf(const osg::Vec3d &eye, const osg::Vec3d &center, const osg::Vec3d &up)
{
    osg::Vec3d view = center - eye;
    view.normalize();
    osg::Vec3d heading = view.z() < -0.99 ? up : view;
    heading.z() = 0;
    heading.normalize();
    return heading;
}

} // namespace

VltTrackBall::VltTrackBall()
{
    setAllowThrow(false); // the scene stops when the mouse button is released
    setVerticalAxisFixed(true);
}

void VltTrackBall::lookAt(const osg::Vec3d &center, double distanceM, double elevationDeg)
{
    const double azimuth = osg::DegreesToRadians(SouthWestDeg);
    const double elevation = osg::DegreesToRadians(elevationDeg);
    const osg::Vec3d direction(std::sin(azimuth) * std::cos(elevation),
                               std::cos(azimuth) * std::cos(elevation), std::sin(elevation));
    setTransformation(center + direction * distanceM, center, osg::Z_AXIS);
}

void VltTrackBall::zoomBy(double factor)
{
    setDistance(std::clamp(getDistance() * factor, MinDistanceM, MaxDistanceM));
}

void VltTrackBall::turnBy(double angleDeg)
{
    setRotation(getRotation() * osg::Quat(osg::DegreesToRadians(angleDeg), osg::Z_AXIS));
}

void VltTrackBall::tiltBy(double angleDeg)
{
    osg::Vec3d eye;
    osg::Vec3d center;
    osg::Vec3d up;
    getTransformation(eye, center, up);
    osg::Vec3d away = eye - center;
    const double distance = away.normalize();
    const osg::Vec3d heading = headingOf(eye, center, up);
    const double old = osg::RadiansToDegrees(std::asin(std::clamp(away.z(), -1.0, 1.0)));
    const double elevation =
        osg::DegreesToRadians(std::clamp(old + angleDeg, MinElevationDeg, MaxElevationDeg));
    away = Upwards * std::sin(elevation) - heading * std::cos(elevation);
    up = Upwards * std::cos(elevation) + heading * std::sin(elevation);
    setTransformation(center + away * distance, center, up);
}

void VltTrackBall::panBy(double right, double ahead)
{
    osg::Vec3d eye;
    osg::Vec3d center;
    osg::Vec3d up;
    getTransformation(eye, center, up);
    const osg::Vec3d heading = headingOf(eye, center, up);
    setCenter(center + ((heading ^ Upwards) * right + heading * ahead) * getDistance());
}

void VltTrackBall::lookDown()
{
    setTransformation(getCenter() + Upwards * getDistance(), getCenter(), osg::Y_AXIS);
}

void VltTrackBall::showFrom(const osg::Vec3d &center, double distanceM)
{
    setCenter(center);
    setDistance(std::clamp(distanceM, MinDistanceM, MaxDistanceM));
}

void VltTrackBall::pivotAt(const osg::Vec3d &point)
{
    osg::Vec3d eye;
    osg::Vec3d center;
    osg::Vec3d up;
    getTransformation(eye, center, up);
    osg::Vec3d view = center - eye;
    view.normalize();
    const double depth = (point - eye) * view;
    if (depth > MinDistanceM)
        showFrom(eye + view * depth, depth);
}

void VltTrackBall::zoomTo(const osg::Vec3d &focus, double factor)
{
    const double before = getDistance();
    zoomBy(factor);
    setCenter(focus + (getCenter() - focus) * (getDistance() / before));
}

/// The place under the pointer at the height of the centre; the centre if it is too far, or above
/// the horizon.
osg::Vec3d VltTrackBall::placeUnderPointer(osgGA::GUIActionAdapter &view) const
{
    const osg::Camera *camera = view.asView() ? view.asView()->getCamera() : nullptr;
    if (!camera)
        return getCenter();
    const osg::Matrixd toWorld =
        osg::Matrixd::inverse(camera->getViewMatrix() * camera->getProjectionMatrix());
    const osg::Vec3d from = osg::Vec3d(m_pointer, -1) * toWorld;
    osg::Vec3d along = osg::Vec3d(m_pointer, 1) * toWorld - from;
    along.normalize();
    const double length = (getCenter().z() - from.z()) / along.z();
    if (!(length > 0 && length < FarthestPlace * getDistance()))
        return getCenter();
    return from + along * length;
}

bool VltTrackBall::handleMouseWheel(const osgGA::GUIEventAdapter &event,
                                    osgGA::GUIActionAdapter &view)
{
    if (event.getScrollingMotion() != osgGA::GUIEventAdapter::SCROLL_2D)
        return osgGA::TrackballManipulator::handleMouseWheel(event, view);
    zoomTo(placeUnderPointer(view), std::pow(1 - ZoomPerNotch, event.getScrollingDeltaY() / Notch));
    view.requestRedraw();
    return true;
}

bool VltTrackBall::performMovementLeftMouseButton(double seconds, double dx, double dy)
{
    if (_ga_t0.valid() && (_ga_t0->getModKeyMask() & osgGA::GUIEventAdapter::MODKEY_SHIFT))
        return performMovementMiddleMouseButton(seconds, dx, dy);
    return osgGA::TrackballManipulator::performMovementLeftMouseButton(seconds, dx, dy);
}

bool VltTrackBall::handleFrame(const osgGA::GUIEventAdapter &event, osgGA::GUIActionAdapter &view)
{
    const double now = event.getTime();
    const double step = m_lastFrameS < 0 ? 0 : std::clamp(now - m_lastFrameS, 0.0, MaxStepS);
    m_lastFrameS = now;
    if (m_isTurning) {
        turnBy(DemoDegPerSecond * step);
        view.requestRedraw();
    }
    return osgGA::TrackballManipulator::handleFrame(event, view);
}
