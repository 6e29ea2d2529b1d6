#include "preview/VltTrackBall.h"

#include <algorithm>
#include <cmath>

namespace {

const double DemoTurnPerSecond = osg::PI / 9; // a turn takes 18 s
constexpr double MaxStepS = 0.1; // otherwise a hidden view would jump when it is visible again
constexpr double SouthWestDeg = 215.5; // azimuth of the camera
constexpr double MinDistanceM = 0.5;
constexpr double MaxDistanceM = 1e8;
constexpr double ZoomPerNotch = 0.12;
constexpr double Notch = 120; // one notch of the wheel, in eighths of a degree

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

bool VltTrackBall::handleMouseWheel(const osgGA::GUIEventAdapter &event,
                                    osgGA::GUIActionAdapter &view)
{
    if (event.getScrollingMotion() != osgGA::GUIEventAdapter::SCROLL_2D)
        return osgGA::TrackballManipulator::handleMouseWheel(event, view);
    zoomBy(std::pow(1 - ZoomPerNotch, event.getScrollingDeltaY() / Notch));
    view.requestRedraw();
    return true;
}

bool VltTrackBall::handleFrame(const osgGA::GUIEventAdapter &event, osgGA::GUIActionAdapter &view)
{
    const double now = event.getTime();
    const double step = m_lastFrameS < 0 ? 0 : std::clamp(now - m_lastFrameS, 0.0, MaxStepS);
    m_lastFrameS = now;
    if (m_isTurning) {
        setRotation(getRotation() * osg::Quat(DemoTurnPerSecond * step, osg::Z_AXIS));
        view.requestRedraw();
    }
    return osgGA::TrackballManipulator::handleFrame(event, view);
}
