#pragma once

#include <osgGA/TrackballManipulator>

/// A trackball that can also be moved by steps, for keys and gestures, and can turn the scene
/// automatically around the vertical axis through its centre, as a demonstration.
///
/// Dragging with the left button and Shift moves the scene, as dragging with the middle button
/// does. The wheel keeps the place under the pointer where it is.
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

    /// Sets the place to which the wheel moves the camera: -1 to 1 from the left to the right and
    /// from the bottom to the top of the view.
    void setPointer(double x, double y) { m_pointer = {x, y}; }

    /// Moves the camera around the vertical axis through the centre, counter-clockwise from above.
    void turnBy(double angleDeg);

    /// Raises the camera around the centre, up to the point above it.
    void tiltBy(double angleDeg);

    /// Moves the camera and its centre horizontally, in shares of its distance.
    void panBy(double right, double ahead);

    /// Looks at the centre from above, with the y axis up.
    void lookDown();

    /// Looks at another centre from the same direction.
    void showFrom(const osg::Vec3d &center, double distanceM);

    /// Moves the centre along the view to the depth of a point, about which the camera then turns.
    void pivotAt(const osg::Vec3d &point);

protected:
    /// Handles scroll events in two dimensions, which the library's function ignores; up moves
    /// closer.
    bool handleMouseWheel(const osgGA::GUIEventAdapter &event,
                          osgGA::GUIActionAdapter &view) override;
    bool performMovementLeftMouseButton(double seconds, double dx, double dy) override;
    bool handleFrame(const osgGA::GUIEventAdapter &event, osgGA::GUIActionAdapter &view) override;

private:
    void zoomTo(const osg::Vec3d &focus, double factor);
    osg::Vec3d placeUnderPointer(osgGA::GUIActionAdapter &view) const;

    bool m_isTurning = false;
    double m_lastFrameS = -1;
    osg::Vec2d m_pointer;
};
