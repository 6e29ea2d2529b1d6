#pragma once

#include "preview/CameraPose.h"
#include "preview/SmoothFrame.h"
#include "preview/Surroundings.h"

#include <QElapsedTimer>
#include <QMetaType>
#include <QOpenGLWidget>
#include <QSurfaceFormat>
#include <QTimer>

#include <osg/observer_ptr>
#include <osgUtil/LineSegmentIntersector>
#include <osgViewer/GraphicsWindow>
#include <osgViewer/Viewer>

#include <limits>
#include <optional>

class VltTrackBall;

/// A small 3D view: an OpenGL widget and a scene viewer in one object. It draws the scene of a page
/// and moves the camera with a trackball.
///
/// A timer checks a hundred times a second whether a new frame is necessary: another scene or
/// camera, events, an animation, or content that was loaded. Any other change inside a scene needs
/// a call of requestRedraw().
///
/// All work is done in the thread of the interface. The parent owns the widget.
// NOLINTNEXTLINE(readability-identifier-naming): the widget's established name
class W_simpleOSGViewer : public QOpenGLWidget, public osgViewer::Viewer
{
    Q_OBJECT

public:
    /// @param shareContext  scene context to share objects with; may be null
    explicit W_simpleOSGViewer(const QSurfaceFormat &format = defaultFormat(),
                               QWidget *parent = nullptr,
                               osg::GraphicsContext *shareContext = nullptr,
                               Qt::WindowFlags flags = {});
    ~W_simpleOSGViewer() override;

    /// Compatibility profile, depth buffer.
    static QSurfaceFormat defaultFormat();

    /// Whether this system supports such a widget. If not, no object may be created.
    static bool isAvailable();

    /// Replaces the scene. For the first one, the camera then shows the whole scene.
    ///
    /// @param ground  shown under the scene, with a sky; empty: the scene alone
    void showScene(osg::Node *scene, GroundMaker ground = {});

    /// Where the camera is and where it looks.
    CameraPose pose() const;
    void setPose(const CameraPose &pose);

    /// Looks at the point `heightM` above the origin from `distanceM` metres.
    void placeCamera(double distanceM, double heightM);

    /// Looks at the centre of the scene from the distance at which it is visible as a whole, but at
    /// least from `minDistanceM`.
    void lookAtMiddle(double minDistanceM);

    /// Sets the maximum distance of the camera for centerView(), because scenes may not be drawn
    /// from a larger one.
    void setMaxDistanceM(double maxDistanceM) { m_maxDistanceM = maxDistanceM; }

    /// Sets the elevation of the camera above the horizon for centerView(), in degrees. Without it,
    /// the elevation depends on the shape of the scene.
    void setElevationDeg(double elevationDeg) { m_elevationDeg = elevationDeg; }

    /// Sets the part of the scene for centerView(), by its extent without heights; the default is
    /// the whole scene.
    void setCore(const std::optional<osg::BoundingBox> &core) { m_core = core; }

    /// The place at a point of the view: of the nearest part of the scene, else of the ground;
    /// nothing over the sky.
    std::optional<osg::Vec3d> placeAt(const QPointF &position);

    /// The parts of the scene at a point of the view, nearest first.
    osgUtil::LineSegmentIntersector::Intersections intersectionsAt(const QPointF &position);

    /// Distance in metres from which a whole box is visible.
    double distanceToSee(const osg::BoundingBox &box) const;

    /// Height of the view in pixels divided by the distance of the camera; 10 before the first
    /// frame.
    double levelOfDetail() const { return m_levelOfDetail; }

public Q_SLOTS:
    /// Shows the whole scene, or its core.
    void centerView();
    /// Shows a node of the scene.
    void centerView(osg::Node *node);
    /// Shows the whole scene, or its core, from the direction of the camera.
    void fitView();
    /// Looks from above, north up.
    void lookDown();
    /// Turns the scene slowly until a mouse button is pressed.
    void startDemo();
    void stopDemo();

Q_SIGNALS:
    /// The mouse moved without a pressed button.
    // NOLINTBEGIN(readability-identifier-naming): established names of the signals
    void emitMouseMoved(QMouseEvent *event);
    /// A mouse button was pressed, which ends a demonstration.
    void emitStopDemo();
    /// The left button was clicked without a drag. `intersections` are the parts of the scene at
    /// that point, nearest first; empty beside the scene.
    void emitSelection(osgUtil::LineSegmentIntersector::Intersections intersections);
    // NOLINTEND(readability-identifier-naming)
    /// The same with the point of the view.
    void clicked(const QPointF &position,
                 const osgUtil::LineSegmentIntersector::Intersections &intersections);

protected:
    void initializeGL() override;
    void resizeGL(int width, int height) override;
    void paintGL() override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    osgGA::EventQueue &events() { return *m_graphicsWindow->getEventQueue(); }
    QPointF inPixels(const QPointF &position) const { return position * devicePixelRatioF(); }
    QSize sizeInPixels() const;
    osg::BoundingBox extentsOf(osg::Node *node);
    void makeGraphicsWindow(osg::GraphicsContext *shareContext);
    void applySize(const QSize &pixels);
    osg::BoundingBox sceneBox();
    void takeKeys(Qt::KeyboardModifiers modifiers);
    bool needsFrame();
    void updateSurroundings();

    osg::ref_ptr<osgViewer::GraphicsWindowEmbedded> m_graphicsWindow;
    QTimer m_refresh;
    std::optional<osg::BoundingBox> m_core;
    osg::ref_ptr<VltTrackBall> m_trackBall;
    bool m_isUserCamera = true; ///< false after the mouse moved the camera
    double m_levelOfDetail = 10;
    double m_maxDistanceM = std::numeric_limits<double>::infinity();
    std::optional<double> m_elevationDeg;
    bool m_wasInitialised = false;
    bool m_wasShown = false;
    osg::observer_ptr<osg::Node> m_drawnScene;
    Surroundings m_surroundings;
    SmoothFrame m_smooth;
    QElapsedTimer m_sinceChange;
    int m_framesToDraw = 0;
    QPointF m_pressedAt;
};

Q_DECLARE_METATYPE(osgUtil::LineSegmentIntersector::Intersections)
