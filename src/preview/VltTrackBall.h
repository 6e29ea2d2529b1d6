#pragma once

#include <osgGA/TrackballManipulator>

/// A trackball that can also turn the scene automatically around the vertical axis through its
/// centre, as a demonstration.
class VltTrackBall : public osgGA::TrackballManipulator
{
public:
    VltTrackBall();

    void startDemo() { m_isTurning = true; }
    void stopDemo() { m_isTurning = false; }
    bool isTurning() const { return m_isTurning; }

    /// Looks at `center` from the south-west.
    ///
    /// @param distanceM     from the camera to the centre
    /// @param elevationDeg  of the camera above the horizon
    void lookAt(const osg::Vec3d &center, double distanceM,
                double elevationDeg = DefaultElevationDeg);

    static constexpr double DefaultElevationDeg = 18;

    /// Multiplies the distance from the centre by `factor`, within limits.
    void zoomBy(double factor);

protected:
    /// Handles scroll events in two dimensions, which the library's function ignores; up moves
    /// closer.
    bool handleMouseWheel(const osgGA::GUIEventAdapter &event,
                          osgGA::GUIActionAdapter &view) override;
    bool handleFrame(const osgGA::GUIEventAdapter &event, osgGA::GUIActionAdapter &view) override;

private:
    bool m_isTurning = false;
    double m_lastFrameS = -1;
};
