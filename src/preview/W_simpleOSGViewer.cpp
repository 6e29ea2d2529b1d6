#include "preview/W_simpleOSGViewer.h"

#include "preview/ExtentsVisitor.h"
#include "preview/VltTrackBall.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QOffscreenSurface>
#include <QOpenGLContext>

#include <osg/Transform>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

constexpr int RefreshMs = 10;
/// Number of frames after a change: what one frame requests, such as another level of detail, is
/// visible only in the next ones.
constexpr int SettlingFrames = 3;
constexpr int RestMs = 150; ///< after which a camera has come to rest
constexpr int DepthBits = 24;
constexpr double ClickTolerance = 4; ///< maximum movement of the mouse in a click, in pixels
constexpr double MinRadiusM = 20;    ///< of the visible part: a single site has no extent at first
constexpr double FlatShare = 0.2;
constexpr double FlatElevationDeg = 50;
constexpr double Margin = 1.15; ///< factor for the space around a centred node
const osg::Vec4 SkyColor(0.2F, 0.4F, 0.8F, 1.0F);

unsigned buttonNumber(Qt::MouseButton button)
{
    switch (button) {
    case Qt::LeftButton:
        return 1;
    case Qt::MiddleButton:
        return 2;
    case Qt::RightButton:
        return 3;
    default:
        return 0;
    }
}

} // namespace

QSurfaceFormat W_simpleOSGViewer::defaultFormat()
{
    QSurfaceFormat format;
    format.setVersion(2, 1);
    format.setProfile(QSurfaceFormat::CompatibilityProfile);
    format.setDepthBufferSize(DepthBits);
    return format;
}

bool W_simpleOSGViewer::isAvailable()
{
    static const bool available = [] {
        // on these platforms the program ends when an OpenGL widget is shown
        const QString platform = QGuiApplication::platformName();
        if (platform == QLatin1String("offscreen") ||
            platform.startsWith(QLatin1String("minimal")) || platform == QLatin1String("vnc"))
            return false;
        QOpenGLContext context;
        context.setFormat(defaultFormat());
        QOffscreenSurface surface;
        surface.setFormat(defaultFormat());
        surface.create();
        return context.create() && context.makeCurrent(&surface);
    }();
    return available;
}

W_simpleOSGViewer::W_simpleOSGViewer(const QSurfaceFormat &format, QWidget *parent,
                                     osg::GraphicsContext *shareContext, Qt::WindowFlags flags)
    : QOpenGLWidget(parent, flags)
    , m_trackBall(new VltTrackBall)
    , m_surroundings(*getCamera())
{
    ref(); // the parent widget owns it, so the scene library must never delete it
    setFormat(format);
    setThreadingModel(SingleThreaded);
    setKeyEventSetsDone(0);
    setCameraManipulator(m_trackBall);
    getCamera()->setClearColor(SkyColor);
    makeGraphicsWindow(shareContext);
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    connect(&m_refresh, &QTimer::timeout, this, [this] {
        updateSurroundings();
        if (needsFrame())
            QOpenGLWidget::update();
    });
    m_refresh.start(RefreshMs);
}

W_simpleOSGViewer::~W_simpleOSGViewer()
{
    m_refresh.stop();
    osg::State *state = m_graphicsWindow->getState();
    if (QOpenGLContext *current = QOpenGLWidget::context()) {
        // its signal of destruction would arrive when this object is partly destroyed
        disconnect(current, nullptr, this, nullptr);
        QOpenGLWidget::makeCurrent();
        if (getSceneData())
            getSceneData()->releaseGLObjects(state);
        getCamera()->releaseGLObjects(state);
        osg::flushAllDeletedGLObjects(state->getContextID());
        m_smooth.release();
        QOpenGLWidget::doneCurrent();
    }
    // The destructor of the viewer would look for OpenGL's functions without a context, and the
    // next context with this number would then have no functions.
    const unsigned contextId = state->getContextID();
    osg::discardAllGLObjects(contextId);
    m_graphicsWindow->setState(nullptr);
    osg::GraphicsContext::decrementContextIDUsageCount(contextId);
    unref_nodelete();
}

QSize W_simpleOSGViewer::sizeInPixels() const
{
    return (QSizeF(QOpenGLWidget::size()) * devicePixelRatioF()).toSize();
}

void W_simpleOSGViewer::makeGraphicsWindow(osg::GraphicsContext *shareContext)
{
    const QSize pixels = sizeInPixels();
    osg::ref_ptr<osg::GraphicsContext::Traits> traits = new osg::GraphicsContext::Traits;
    traits->x = 0;
    traits->y = 0;
    traits->width = std::max(pixels.width(), 1);
    traits->height = std::max(pixels.height(), 1);
    traits->sharedContext = shareContext;
    m_graphicsWindow = new osgViewer::GraphicsWindowEmbedded(traits);
    getCamera()->setGraphicsContext(m_graphicsWindow);
    events().getCurrentEventState()->setGraphicsContext(m_graphicsWindow);
    applySize(pixels);
}

void W_simpleOSGViewer::applySize(const QSize &pixels)
{
    m_framesToDraw = SettlingFrames;
    if (pixels.height() > 0) // a height of 0 would make the projection infinitely wide
        m_graphicsWindow->resized(0, 0, pixels.width(), pixels.height());
    events().windowResize(0, 0, pixels.width(), pixels.height());
    getCamera()->setViewport(0, 0, pixels.width(), pixels.height());
    if (pixels.height() == 0)
        return;
    double fieldOfView = 0;
    double aspect = 0;
    double nearPlane = 0;
    double farPlane = 0;
    if (getCamera()->getProjectionMatrixAsPerspective(fieldOfView, aspect, nearPlane, farPlane))
        getCamera()->setProjectionMatrixAsPerspective(
            fieldOfView, static_cast<double>(pixels.width()) / pixels.height(), nearPlane,
            farPlane);
}

void W_simpleOSGViewer::initializeGL()
{
    QOpenGLWidget::initializeGL();
    // In another window the widget has another context, and the objects of the old one do not exist
    // any more.
    if (m_wasInitialised) {
        if (getSceneData())
            getSceneData()->releaseGLObjects();
        m_smooth.release();
        makeGraphicsWindow(nullptr);
    }
    m_wasInitialised = true;
    m_framesToDraw = SettlingFrames;
}

void W_simpleOSGViewer::resizeGL(int width, int height)
{
    applySize((QSizeF(width, height) * devicePixelRatioF()).toSize());
}

/// Whether the next frame may differ from the last one.
bool W_simpleOSGViewer::needsFrame()
{
    if (!isVisible())
        return false;
    const bool isDue =
        getSceneData() != m_drawnScene.get() || !events().empty() || m_trackBall->isTurning() ||
        m_trackBall->getInverseMatrix() != getCamera()->getViewMatrix() || checkNeedToDoFrame();
    if (isDue) {
        m_framesToDraw = SettlingFrames;
        m_sinceChange.start();
    }
    // between the movements of a drag, the last frame would keep the next ones waiting
    const bool isMoving = m_sinceChange.isValid() && m_sinceChange.elapsed() < RestMs;
    const bool isPostponed = m_framesToDraw == 1 && isMoving && !m_smooth.isFast();
    return m_framesToDraw > 0 && !isPostponed;
}

void W_simpleOSGViewer::paintGL()
{
    const osg::Viewport *viewport = getCamera()->getViewport();
    const QSize pixels = sizeInPixels();
    // after a change of the screen, the pixel density may be another one
    if (QSizeF(viewport->width(), viewport->height()) != QSizeF(pixels))
        applySize(pixels);
    const bool isLast = m_framesToDraw <= 1; // nothing has changed since the one before
    if (isLast || m_smooth.isFast()) {
        m_smooth.draw(*m_graphicsWindow, pixels, defaultFramebufferObject(), [this] { frame(); });
    } else {
        m_graphicsWindow->setDefaultFboId(defaultFramebufferObject());
        frame();
    }
    m_drawnScene = getSceneData();
    m_framesToDraw = std::max(m_framesToDraw - 1, 0);
    const double distance = std::max(m_trackBall->getDistance(), 1.0);
    m_levelOfDetail = getCamera()->getViewport()->height() / distance;
}

void W_simpleOSGViewer::updateSurroundings()
{
    if (!isVisible() || !getSceneData())
        return;
    const CameraPose now = pose();
    if (m_surroundings.update(now.eye, now.center))
        m_framesToDraw = SettlingFrames;
}

void W_simpleOSGViewer::showScene(osg::Node *scene, GroundMaker ground)
{
    // the graphics objects of the old scene can only be released in the context of this view
    if (osg::Node *old = getSceneData(); old && old != scene && QOpenGLWidget::context()) {
        QOpenGLWidget::makeCurrent();
        old->releaseGLObjects(m_graphicsWindow->getState());
        QOpenGLWidget::doneCurrent();
    }
    const CameraPose before = pose();
    setSceneData(scene); // this moves the camera to its home position
    setLightingMode(ground ? osg::View::NO_LIGHT : osg::View::HEADLIGHT);
    m_surroundings.show(scene ? std::move(ground) : GroundMaker());
    if (m_wasShown)
        setPose(before);
    else if (scene)
        centerView();
    m_wasShown = m_wasShown || scene;
    m_framesToDraw = SettlingFrames;
    QOpenGLWidget::update();
}

CameraPose W_simpleOSGViewer::pose() const
{
    CameraPose now;
    m_trackBall->getTransformation(now.eye, now.center, now.up);
    return now;
}

void W_simpleOSGViewer::setPose(const CameraPose &pose)
{
    m_trackBall->setTransformation(pose.eye, pose.center, pose.up);
}

void W_simpleOSGViewer::placeCamera(double distanceM, double heightM)
{
    m_isUserCamera = true;
    m_trackBall->lookAt(osg::Vec3d(0, 0, heightM), distanceM);
}

void W_simpleOSGViewer::lookAtMiddle(double minDistanceM)
{
    const osg::BoundingBox box = extentsOf(getSceneData());
    if (!box.valid())
        return;
    m_isUserCamera = true;
    m_trackBall->lookAt(box.center(), std::max(minDistanceM, distanceToSee(box)));
}

void W_simpleOSGViewer::centerView()
{
    centerView(getSceneData());
}

/// Extents of a node in the coordinates of the scene; not valid for a null or empty node.
osg::BoundingBox W_simpleOSGViewer::extentsOf(osg::Node *node)
{
    if (!node)
        return {};
    ExtentsVisitor visitor;
    node->accept(visitor);
    osg::Matrix toScene; // without the matrix of the node, which the visitor has applied
    if (osg::NodePathList paths = node->getParentalNodePaths(getSceneData()); !paths.empty()) {
        paths.front().pop_back();
        toScene = osg::computeLocalToWorld(paths.front());
    }
    osg::BoundingBox box;
    const osg::BoundingBox extents = visitor.extents();
    for (unsigned corner = 0; extents.valid() && corner < 8; ++corner)
        box.expandBy(extents.corner(corner) * toScene);
    return box;
}

double W_simpleOSGViewer::distanceToSee(const osg::BoundingBox &box) const
{
    double fieldOfView = 30;
    double aspect = 1;
    double nearPlane = 0;
    double farPlane = 0;
    getCamera()->getProjectionMatrixAsPerspective(fieldOfView, aspect, nearPlane, farPlane);
    const double half = osg::DegreesToRadians(fieldOfView) / 2 * std::min(aspect, 1.0);
    const double radius = std::max<double>(box.radius(), MinRadiusM);
    return Margin * radius / std::sin(half);
}

/// Extents of the scene, or of its core.
osg::BoundingBox W_simpleOSGViewer::sceneBox()
{
    osg::BoundingBox box = extentsOf(getSceneData());
    if (m_core && box.valid())
        box.set(m_core->xMin(), m_core->yMin(), box.zMin(), m_core->xMax(), m_core->yMax(),
                box.zMax());
    return box;
}

void W_simpleOSGViewer::fitView()
{
    if (const osg::BoundingBox box = sceneBox(); box.valid())
        m_trackBall->showFrom(box.center(), std::min(m_maxDistanceM, distanceToSee(box)));
}

void W_simpleOSGViewer::lookDown()
{
    m_trackBall->lookDown();
}

void W_simpleOSGViewer::centerView(osg::Node *node)
{
    const osg::BoundingBox box = node == getSceneData() ? sceneBox() : extentsOf(node);
    if (!box.valid())
        return;
    m_isUserCamera = true;
    // a flat scene, such as the sites of a city, needs a higher camera
    const bool isFlat = box.zMax() - box.zMin() < FlatShare * box.radius();
    const double defaultDeg = isFlat ? FlatElevationDeg : VltTrackBall::DefaultElevationDeg;
    m_trackBall->lookAt(box.center(), std::min(m_maxDistanceM, distanceToSee(box)),
                        m_elevationDeg.value_or(defaultDeg));
}

void W_simpleOSGViewer::startDemo()
{
    m_trackBall->startDemo();
}

void W_simpleOSGViewer::stopDemo()
{
    m_trackBall->stopDemo();
}

void W_simpleOSGViewer::mousePressEvent(QMouseEvent *event)
{
    m_isUserCamera = false;
    m_pressedAt = event->position();
    const QPointF at = inPixels(event->position());
    takeKeys(event->modifiers());
    if (event->button() == Qt::LeftButton && getSceneData()) {
        if (const auto met = intersectionsAt(event->position()); !met.empty())
            m_trackBall->pivotAt(met.begin()->getWorldIntersectPoint());
    }
    events().mouseButtonPress(static_cast<float>(at.x()), static_cast<float>(at.y()),
                              buttonNumber(event->button()));
    stopDemo();
    Q_EMIT emitStopDemo();
}

void W_simpleOSGViewer::mouseReleaseEvent(QMouseEvent *event)
{
    const QPointF at = inPixels(event->position());
    events().mouseButtonRelease(static_cast<float>(at.x()), static_cast<float>(at.y()),
                                buttonNumber(event->button()));
    const bool isClick = (event->position() - m_pressedAt).manhattanLength() <= ClickTolerance;
    if (!isClick || event->button() != Qt::LeftButton)
        return;
    const auto met = intersectionsAt(event->position());
    Q_EMIT emitSelection(met);
    Q_EMIT clicked(event->position(), met);
}

void W_simpleOSGViewer::mouseDoubleClickEvent(QMouseEvent *event)
{
    const QPointF at = inPixels(event->position());
    events().mouseDoubleButtonPress(static_cast<float>(at.x()), static_cast<float>(at.y()),
                                    buttonNumber(event->button()));
    stopDemo();
    Q_EMIT emitStopDemo();
}

void W_simpleOSGViewer::mouseMoveEvent(QMouseEvent *event)
{
    if (event->buttons() == Qt::NoButton) {
        Q_EMIT emitMouseMoved(event);
        return;
    }
    const QPointF at = inPixels(event->position());
    takeKeys(event->modifiers());
    events().mouseMotion(static_cast<float>(at.x()), static_cast<float>(at.y()));
}

void W_simpleOSGViewer::wheelEvent(QWheelEvent *event)
{
    m_isUserCamera = false;
    const QPointF at = event->position();
    m_trackBall->setPointer(2 * at.x() / QWidget::width() - 1, 1 - 2 * at.y() / QWidget::height());
    const QPoint delta = event->angleDelta();
    events().mouseScroll2D(static_cast<float>(delta.x()), static_cast<float>(delta.y()));
    event->accept();
}

/// Gestures of two fingers on a touchpad.
bool W_simpleOSGViewer::event(QEvent *event)
{
    if (event->type() != QEvent::NativeGesture)
        return QOpenGLWidget::event(event);
    const auto *gesture = static_cast<QNativeGestureEvent *>(event);
    if (gesture->gestureType() == Qt::ZoomNativeGesture)
        m_trackBall->zoomBy(1 / std::max(0.1, 1 + gesture->value()));
    else if (gesture->gestureType() == Qt::RotateNativeGesture)
        m_trackBall->turnBy(gesture->value());
    else
        return QOpenGLWidget::event(event);
    m_isUserCamera = false;
    return true;
}

/// Moves the camera with the keyboard, as with the mouse.
void W_simpleOSGViewer::keyPressEvent(QKeyEvent *event)
{
    constexpr double StepDeg = 5;
    constexpr double PanStep = 0.05; // of the distance
    constexpr double ZoomStep = 1.15;
    const bool isPan = event->modifiers() & Qt::ShiftModifier;
    switch (event->key()) {
    case Qt::Key_Left:
        isPan ? m_trackBall->panBy(-PanStep, 0) : m_trackBall->turnBy(StepDeg);
        break;
    case Qt::Key_Right:
        isPan ? m_trackBall->panBy(PanStep, 0) : m_trackBall->turnBy(-StepDeg);
        break;
    case Qt::Key_Up:
        isPan ? m_trackBall->panBy(0, PanStep) : m_trackBall->tiltBy(StepDeg);
        break;
    case Qt::Key_Down:
        isPan ? m_trackBall->panBy(0, -PanStep) : m_trackBall->tiltBy(-StepDeg);
        break;
    case Qt::Key_Plus:
        m_trackBall->zoomBy(1 / ZoomStep);
        break;
    case Qt::Key_Minus:
        m_trackBall->zoomBy(ZoomStep);
        break;
    case Qt::Key_T:
        lookDown();
        break;
    case Qt::Key_F:
        fitView();
        break;
    case Qt::Key_Home:
        centerView();
        break;
    default:
        QOpenGLWidget::keyPressEvent(event);
        return;
    }
    stopDemo();
    m_isUserCamera = false;
}

/// Hands the keys that are held to the queue, for its next event.
void W_simpleOSGViewer::takeKeys(Qt::KeyboardModifiers modifiers)
{
    events().getCurrentEventState()->setModKeyMask(
        modifiers & Qt::ShiftModifier ? osgGA::GUIEventAdapter::MODKEY_SHIFT : 0);
}

osgUtil::LineSegmentIntersector::Intersections
W_simpleOSGViewer::intersectionsAt(const QPointF &position)
{
    const QPointF at = inPixels(position);
    // in the viewport, y increases upwards
    const double y = getCamera()->getViewport()->height() - at.y();
    osg::ref_ptr<osgUtil::LineSegmentIntersector> line =
        new osgUtil::LineSegmentIntersector(osgUtil::Intersector::WINDOW, at.x(), y);
    osgUtil::IntersectionVisitor visitor(line);
    visitor.setTraversalMask(~Surroundings::Mask);
    getCamera()->accept(visitor);
    return line->getIntersections();
}

std::optional<osg::Vec3d> W_simpleOSGViewer::placeAt(const QPointF &position)
{
    if (!getSceneData() || !m_surroundings.ground())
        return std::nullopt;
    const QPointF at = inPixels(position);
    if (const auto met = intersectionsAt(position); !met.empty())
        return met.begin()->getWorldIntersectPoint();
    const osg::Camera &camera = *getCamera();
    const osg::Matrixd toScene =
        osg::Matrixd::inverse(camera.getViewMatrix() * camera.getProjectionMatrix() *
                              camera.getViewport()->computeWindowMatrix());
    const double y = camera.getViewport()->height() - at.y();
    osg::ref_ptr<osgUtil::LineSegmentIntersector> line = new osgUtil::LineSegmentIntersector(
        osg::Vec3d(at.x(), y, 0) * toScene, osg::Vec3d(at.x(), y, 1) * toScene);
    osgUtil::IntersectionVisitor visitor(line);
    m_surroundings.ground()->accept(visitor);
    if (!line->containsIntersections())
        return std::nullopt;
    return line->getFirstIntersection().getWorldIntersectPoint();
}
