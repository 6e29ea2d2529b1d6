#include "preview/VltTrackBall.h"

#include <algorithm>
#include <cmath>

namespace {

const double DemoTurnPerSecond = osg::PI / 9; // 18 s for a whole turn
constexpr double LongestStepS = 0.1;          // a hidden view does not jump when it comes back
constexpr double SouthWestDeg = 215.5;        // azimuth of the eye
constexpr double NearestM = 0.5;
constexpr double FarthestM = 1e8;
constexpr double ZoomPerNotch = 0.12;
constexpr double Notch = 120; // an eighth of a degree each

} // namespace

VltTrackBall::VltTrackBall()
{
    setAllowThrow(false); // the scene stands still when the mouse is let go
    setVerticalAxisFixed(true);
}

void VltTrackBall::lookAt(const osg::Vec3d &center, double distance, double elevationDeg)
{
    const double azimuth = osg::DegreesToRadians(SouthWestDeg);
    const double elevation = osg::DegreesToRadians(elevationDeg);
    const osg::Vec3d direction(std::sin(azimuth) * std::cos(elevation),
                               std::cos(azimuth) * std::cos(elevation), std::sin(elevation));
    setTransformation(center + direction * distance, center, osg::Z_AXIS);
}

void VltTrackBall::zoomBy(double factor)
{
    setDistance(std::clamp(getDistance() * factor, NearestM, FarthestM));
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
    const double step = m_lastFrameS < 0 ? 0 : std::clamp(now - m_lastFrameS, 0.0, LongestStepS);
    m_lastFrameS = now;
    if (m_isTurning) {
        setRotation(getRotation() * osg::Quat(DemoTurnPerSecond * step, osg::Z_AXIS));
        view.requestRedraw();
    }
    return osgGA::TrackballManipulator::handleFrame(event, view);
}
