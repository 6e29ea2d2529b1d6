#pragma once

#include <osg/Vec3d>

/// Where the camera of a view is and where it looks, in the frame of its scene.
struct CameraPose
{
    osg::Vec3d eye;
    osg::Vec3d center;
    osg::Vec3d up;

    double distanceM() const { return (eye - center).length(); }
};
