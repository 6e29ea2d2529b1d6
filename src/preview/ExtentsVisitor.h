#pragma once

#include <osg/BoundingBox>
#include <osg/Matrix>
#include <osg/NodeVisitor>

#include <vector>

/// Walks a scene and finds the extents of what is drawn, in the frame of the node that it is given
/// to, in metres. Of levels of detail all are counted; what makes its content when drawn counts
/// with its bound.
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
