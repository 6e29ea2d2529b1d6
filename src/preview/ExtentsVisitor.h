#pragma once

#include <osg/BoundingBox>
#include <osg/Matrix>
#include <osg/NodeVisitor>

#include <vector>

/// Finds the extents of the visible geometry of a scene in metres, in the frame of the node that
/// accepts the visitor. All levels of detail count.
///
/// Of a node that creates its content only when drawn nothing but a sphere is known. It counts with
/// the cube inside the sphere, which is as far across, and only horizontally if other geometry has
/// heights: sites of a region would be as high as they are wide otherwise.
class ExtentsVisitor : public osg::NodeVisitor
{
public:
    ExtentsVisitor();

    void apply(osg::Node &node) override;
    void apply(osg::Transform &transform) override;
    void apply(osg::Drawable &drawable) override;

    /// Invalid for a scene without geometry.
    osg::BoundingBox extents() const;

private:
    std::vector<osg::Matrix> m_matrices;
    osg::BoundingBox m_made;
    osg::BoundingBox m_deferred;
};
