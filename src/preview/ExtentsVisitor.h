#pragma once

#include <osg/BoundingBox>
#include <osg/Matrix>
#include <osg/NodeVisitor>

#include <vector>

/// Finds the extents of the visible geometry of a scene in metres, in the frame of the node that
/// accepts the visitor. All levels of detail count. A node that creates its content only when drawn
/// counts with its bound.
class ExtentsVisitor : public osg::NodeVisitor
{
public:
    ExtentsVisitor();

    void apply(osg::Node &node) override;
    void apply(osg::Transform &transform) override;
    void apply(osg::Drawable &drawable) override;

    /// Invalid for a scene without geometry.
    const osg::BoundingBox &extents() const { return m_extents; }

private:
    std::vector<osg::Matrix> m_matrices;
    osg::BoundingBox m_extents;
};
