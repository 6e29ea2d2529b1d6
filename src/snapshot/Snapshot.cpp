#include "snapshot/Snapshot.h"

#include "landscape/scene/Colors.h"
#include "landscape/scene/Light.h"
#include "landscape/scene/Sky.h"
#include "snapshot/OffscreenTarget.h"
#include "snapshot/SceneEarth.h"
#include "snapshot/Transparency.h"

#include <osg/FrameBufferObject>
#include <osgDB/DatabasePager>
#include <osgViewer/Viewer>

#include <QElapsedTimer>

namespace vlt::snapshot {

namespace {

constexpr double MinShownPx = 0.5;
constexpr int MaxLoadingMs = 60000;
constexpr double NearShare = 0.0002; ///< distance of the near plane / that of the far one

/// Makes a camera draw into a frame buffer.
class DrawInto : public osg::Camera::DrawCallback
{
public:
    explicit DrawInto(unsigned int frameBuffer) : m_frameBuffer(frameBuffer) {}

    void operator()(osg::RenderInfo &info) const override
    {
        info.getState()->get<osg::GLExtensions>()->glBindFramebuffer(GL_FRAMEBUFFER_EXT,
                                                                     m_frameBuffer);
    }

private:
    unsigned int m_frameBuffer;
};

osg::ref_ptr<osg::GraphicsContext> makeContext()
{
    osg::ref_ptr<osg::GraphicsContext::Traits> traits = new osg::GraphicsContext::Traits;
    traits->readDISPLAY();
    // Only the context is needed, not its size: the picture has a frame buffer of its own.
    traits->width = 1;
    traits->height = 1;
    traits->pbuffer = true;
    osg::ref_ptr<osg::GraphicsContext> context =
        osg::GraphicsContext::createGraphicsContext(traits);
    if (!context || !context->valid() || !context->realize() || !context->makeCurrent())
        return nullptr;
    return context;
}

void setUpCamera(osg::Camera &camera, const ViewPoint &point, const QSize &size)
{
    camera.setViewport(0, 0, size.width(), size.height());
    camera.setProjectionMatrixAsPerspective(
        point.fieldOfViewDeg, static_cast<double>(size.width()) / size.height(), 1, 1000);
    camera.setViewMatrixAsLookAt(point.eye, point.target, point.up);
    camera.setClearColor(landscape::colorOf(landscape::Haze)); // below the sky, without a ground
    camera.setLODScale(1);
    camera.setSmallFeatureCullingPixelSize(MinShownPx);
    camera.setNearFarRatio(NearShare); // the ground reaches far, the scene may be near
}

/// Draws frames until everything that the view needs is loaded, and then the last one.
void drawAll(osgViewer::Viewer &viewer)
{
    QElapsedTimer since;
    since.start();
    const osgDB::DatabasePager *pager = viewer.getDatabasePager();
    do {
        viewer.frame(0);
    } while (pager && (pager->getRequestsInProgress() || pager->requiresUpdateSceneGraph()) &&
             since.elapsed() < MaxLoadingMs);
    viewer.frame(0); // draws what the frame before has loaded
}

QImage readPicture(osg::GraphicsContext &context, const OffscreenTarget &target)
{
    context.makeCurrent();
    QImage picture = target.read();
    context.releaseContext();
    return picture;
}

/// Draws once more, over black and over white: a half-transparent zone is right in this way,
/// however many surfaces lie in front of each other.
QImage transparentPicture(osgViewer::Viewer &viewer, osg::GraphicsContext &context,
                          const OffscreenTarget &target)
{
    const auto over = [&](float brightness) {
        viewer.getCamera()->setClearColor({brightness, brightness, brightness, 1});
        viewer.frame(0);
        return readPicture(context, target);
    };
    const QImage overBlack = over(0);
    const QImage overWhite = over(1);
    return overBlack.isNull() || overWhite.isNull() ? QImage()
                                                    : withoutBackground(overBlack, overWhite);
}

void addAids(QImage &picture, const readingaids::PictureAids &aids, const osg::Node &scene,
             const ViewPoint &point)
{
    const auto vector = [](const osg::Vec3d &from) {
        return readingaids::Vector{from.x(), from.y(), from.z()};
    };
    readingaids::drawAids(
        picture, aids,
        {vector(point.eye), vector(point.target), vector(point.up), point.fieldOfViewDeg},
        NorthAtPlace(frameOf(scene))({point.target.x(), point.target.y()}));
}

} // namespace

Result<DrawnPicture> renderSnapshot(osg::Node &scene, const PictureRequest &request,
                                    SceneGround *ground)
{
    const QSize &size = request.size;
    const double aspect = static_cast<double>(size.width()) / size.height();
    const Result<ViewPoint> point = request.object ? viewOfObject(scene, *request.object, aspect)
                                                   : findViewPoint(scene, request.view, aspect);
    if (!point)
        return point.error();

    osgViewer::Viewer viewer;
    const osg::ref_ptr<osg::GraphicsContext> context = makeContext();
    if (!context)
        return Error{QStringLiteral("MESS_SNAP_NO_DISPLAY"),
                     QStringLiteral("no OpenGL display; run under xvfb-run"),
                     {}};
    OffscreenTarget target(*context->getState()->get<osg::GLExtensions>());
    const Error noRoom{QStringLiteral("MESS_SNAP_NO_ROOM"),
                       QStringLiteral("the display cannot hold a picture of this size"),
                       {}};
    if (!target.create(size))
        return noRoom;
    // Cameras within the scene return to this frame buffer.
    context->setDefaultFboId(target.frameBuffer());
    context->releaseContext();

    const osg::ref_ptr<osg::Group> root = new osg::Group;
    if (!request.isTransparent)
        root->addChild(landscape::makeSky());
    if (ground)
        root->addChild(ground->around(point.value().eye, point.value().target));
    root->addChild(landscape::underLight(&scene));
    viewer.setThreadingModel(osgViewer::ViewerBase::SingleThreaded);
    viewer.setLightingMode(osg::View::NO_LIGHT);
    viewer.getCamera()->setGraphicsContext(context);
    viewer.getCamera()->setInitialDrawCallback(new DrawInto(target.frameBuffer()));
    setUpCamera(*viewer.getCamera(), point.value(), size);
    viewer.setSceneData(root);
    viewer.realize();
    drawAll(viewer);
    QImage picture = request.isTransparent ? transparentPicture(viewer, *context, target)
                                           : readPicture(*context, target);
    root->removeChildren(0, root->getNumChildren());
    if (picture.isNull())
        return noRoom;
    if (!request.aids.isEmpty())
        addAids(picture, request.aids, scene, point.value());
    return DrawnPicture{picture, point.value().eye};
}

} // namespace vlt::snapshot
