#pragma once

#include <osgGA/TrackballManipulator>

/// A trackball that can turn the scene by itself, around the vertical through its centre, as a
/// demonstration.
class VltTrackBall : public osgGA::TrackballManipulator
{
public:
    VltTrackBall();

    void startDemo() { m_isTurning = true; }
    void stopDemo() { m_isTurning = false; }
    bool isTurning() const { return m_isTurning; }

    /// Looks at `center` from the south-west.
    ///
    /// @param distance      metres from the eye to the centre
    /// @param elevationDeg  degrees of the eye above the horizon
    void lookAt(const osg::Vec3d &center, double distance, double elevationDeg = UsualElevationDeg);

    static constexpr double UsualElevationDeg = 18;

    /// Goes so many times as far from the centre, within sensible limits.
    void zoomBy(double factor);

protected:
    /// Takes scrolls in two dimensions, which the library's own leaves alone: up comes nearer.
    bool handleMouseWheel(const osgGA::GUIEventAdapter &event,
                          osgGA::GUIActionAdapter &view) override;
    bool handleFrame(const osgGA::GUIEventAdapter &event, osgGA::GUIActionAdapter &view) override;

private:
    bool m_isTurning = false;
    double m_lastFrameS = -1;
};
