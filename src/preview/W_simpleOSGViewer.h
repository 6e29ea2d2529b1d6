#pragma once

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

/// A small 3D view: an OpenGL widget that is at the same time a scene viewer. It draws the scene
/// that a page hands it as scene data, and moves the camera by a trackball.
///
/// A timer looks a hundred times a second whether another picture is due: the scene or the camera
/// is another one, there are events, the scene animates itself or has loaded something. A change
/// within a scene that says nothing of itself is to be told by requestRedraw().
///
/// Everything happens on the thread of the interface. The widget is owned by its parent.
// NOLINTNEXTLINE(readability-identifier-naming): the widget's established name
class W_simpleOSGViewer : public QOpenGLWidget, public osgViewer::Viewer
{
    Q_OBJECT

public:
    /// @param shareContext  scene context to share objects with; may be null
    explicit W_simpleOSGViewer(const QSurfaceFormat &format = usualFormat(),
                               QWidget *parent = nullptr,
                               osg::GraphicsContext *shareContext = nullptr,
                               Qt::WindowFlags flags = {});
    ~W_simpleOSGViewer() override;

    /// Compatibility profile, depth buffer, four samples a pixel.
    static QSurfaceFormat usualFormat();

    /// Whether this system can show such a widget; where it cannot, none may be made.
    static bool isAvailable();

    /// Replaces the scene; the first one that is shown also places the camera on the whole of it.
    void showScene(osg::Node *scene);

    /// Looks at the point `heightM` above the origin from `distanceM` metres.
    void placeCamera(double distanceM, double heightM);

    /// Looks at the middle of the whole scene, from `leastM` metres or as far as it needs.
    void lookAtMiddle(double leastM);

    /// From how far centerView() looks at most: scenes may draw nothing that is farther away.
    void setFarthestM(double farthestM) { m_farthestM = farthestM; }

    /// How high centerView() puts the eye, in degrees above the horizon, whatever the scene's
    /// shape.
    void setElevationDeg(double elevationDeg) { m_elevationDeg = elevationDeg; }

    /// Detail that the view can show, from its height in pixels and the camera's distance; 10 until
    /// a frame was drawn.
    double levelOfDetail() const { return m_levelOfDetail; }

public Q_SLOTS:
    /// The camera on the whole scene.
    void centerView();
    /// The camera on a node of the scene.
    void centerView(osg::Node *node);
    /// Turns the scene slowly until a mouse button is pressed.
    void startDemo();
    void stopDemo();

Q_SIGNALS:
    /// The mouse moved with no button pressed.
    // NOLINTBEGIN(readability-identifier-naming): established names of the signals
    void emitMouseMoved(QMouseEvent *event);
    /// A button was pressed: a demonstration ends.
    void emitStopDemo();
    /// The left button was clicked without a drag: what lies under the point, nearest first; empty
    /// beside the scene.
    void emitSelection(osgUtil::LineSegmentIntersector::Intersections intersections);
    // NOLINTEND(readability-identifier-naming)

protected:
    void initializeGL() override;
    void resizeGL(int width, int height) override;
    void paintGL() override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    osgGA::EventQueue &events() { return *m_graphicsWindow->getEventQueue(); }
    QPointF inPixels(const QPointF &position) const { return position * devicePixelRatioF(); }
    QSize sizeInPixels() const;
    osg::BoundingBox extentsOf(osg::Node *node);
    double distanceToSee(const osg::BoundingBox &box) const;
    void makeGraphicsWindow(osg::GraphicsContext *shareContext);
    void applySize(const QSize &pixels);
    void pick(const QPointF &position);
    bool needsFrame();

    osg::ref_ptr<osgViewer::GraphicsWindowEmbedded> m_graphicsWindow;
    QTimer m_refresh;
    osg::ref_ptr<VltTrackBall> m_trackBall;
    bool m_isUserCamera = true; ///< until the mouse takes the camera
    double m_levelOfDetail = 10;
    double m_farthestM = std::numeric_limits<double>::infinity();
    std::optional<double> m_elevationDeg;
    bool m_wasInitialised = false;
    bool m_wasShown = false;
    osg::observer_ptr<osg::Node> m_drawnScene;
    int m_framesToDraw = 0;
    QPointF m_pressedAt;
};

Q_DECLARE_METATYPE(osgUtil::LineSegmentIntersector::Intersections)
