#pragma once

#include <osg/StateSet>

namespace vlt::scene {

/// A state of sectors that draws dark edges within their faces, for coarse sectors: thousands of
/// lines would take as long as all faces. The first texture coordinates of a vertex are its
/// place on the face, 0 or 1 at the edges. The scene has to have a PictureHeight; without shaders
/// there are no edges.
///
/// @param sector  a state of SceneMaterials
osg::ref_ptr<osg::StateSet> makeEdgedState(const osg::StateSet &sector);

} // namespace vlt::scene
