#pragma once

#include <osg/Referenced>
#include <osg/StateSet>
#include <osg/ref_ptr>

namespace vlt::scene {

/// The few states with which everything is drawn; colours come from the vertices. Drawables share
/// them, so that the renderer changes state rarely. There are no lights: the viewer has its own.
struct SceneMaterials : osg::Referenced
{
    SceneMaterials();

    osg::ref_ptr<osg::StateSet> metal;
    osg::ref_ptr<osg::StateSet> matt;
    osg::ref_ptr<osg::StateSet> opaqueSector;
    osg::ref_ptr<osg::StateSet> translucentSector; ///< for geometries that draw both their sides
    osg::ref_ptr<osg::StateSet> sectorEdges;

private:
    ~SceneMaterials() override = default;
};

} // namespace vlt::scene
