#pragma once

#include <osg/GraphicsContext>
#include <osg/Image>
#include <osgViewer/Viewer>

inline osg::ref_ptr<osg::GraphicsContext> openContext(int side)
{
    osg::ref_ptr<osg::GraphicsContext::Traits> traits = new osg::GraphicsContext::Traits;
    traits->readDISPLAY();
    traits->setUndefinedScreenDetailsToDefaultScreen();
    traits->width = traits->height = side;
    traits->pbuffer = true;
    return osg::GraphicsContext::createGraphicsContext(traits);
}

/// A picture of 301 x 301 pixels from an eye that looks at the origin, with a black background;
/// null without a screen.
inline osg::ref_ptr<osg::Image> scenePicture(osg::Node *scene, const osg::Vec3d &eye,
                                             bool isParallel = false)
{
    constexpr int Side = 301;
    osgViewer::Viewer viewer;
    viewer.setThreadingModel(osgViewer::ViewerBase::SingleThreaded);
    osg::Camera &camera = *viewer.getCamera();
    camera.setGraphicsContext(openContext(Side));
    if (!camera.getGraphicsContext())
        return nullptr;
    camera.setViewport(0, 0, Side, Side);
    camera.setDrawBuffer(GL_FRONT);
    camera.setReadBuffer(GL_FRONT);
    camera.setClearColor(osg::Vec4(0, 0, 0, 1));
    if (isParallel)
        camera.setProjectionMatrixAsOrtho(-602, 602, -602, 602, 1, 1e5);
    else
        camera.setProjectionMatrixAsPerspective(60, 1, 1, 1e5);
    const osg::ref_ptr<osg::Image> image = new osg::Image;
    image->allocateImage(Side, Side, 1, GL_RGB, GL_UNSIGNED_BYTE);
    camera.attach(osg::Camera::COLOR_BUFFER, image);
    viewer.setSceneData(scene);
    viewer.realize();
    camera.setViewMatrixAsLookAt(eye, {}, {0, 0.01, 1});
    viewer.frame();
    return image;
}
