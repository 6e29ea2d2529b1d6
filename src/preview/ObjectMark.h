#pragma once

#include "picking/SceneObjects.h"

#include <osg/Group>
#include <osg/Node>

#include <cstddef>

/// Makes the mark of an object, which is drawn over all parts of the scene: a ring of constant size
/// on the screen about a site, and its mast; the line of a link and rings at its ends; the edges of
/// a building, or a ring about one that is drawn as a dot.
///
/// @param scene   of the objects; the edges of a building are those of its triangles
/// @param unitPx  pixels of the screen in a pixel of the interface
osg::ref_ptr<osg::Group> markOf(osg::Node &scene, const vlt::picking::SceneObjects &objects,
                                std::size_t object, double unitPx);
