#pragma once

#include <osg/Referenced>
#include <osg/StateSet>
#include <osg/ref_ptr>

namespace vlt::scene {

/// The state sets of all pylons. Drawables share them, so that the renderer changes its state
/// rarely. Colours are those of the vertices; lights are left to the viewer.
struct SceneMaterials : osg::Referenced
{
    SceneMaterials();

    osg::ref_ptr<osg::StateSet> metal;
    osg::ref_ptr<osg::StateSet> matt;
    osg::ref_ptr<osg::StateSet> opaqueSector;
    osg::ref_ptr<osg::StateSet> translucentSector; ///< for BothSidesGeometry
    osg::ref_ptr<osg::StateSet> sectorEdges;

private:
    ~SceneMaterials() override = default;
};

} // namespace vlt::scene
