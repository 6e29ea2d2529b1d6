#include "snapshot/DrawnExtents.h"

#include <osg/Camera>
#include <osg/Drawable>
#include <osg/LOD>
#include <osgText/TextBase>

namespace vlt::snapshot {

// Nodes make their deferred content for cull visitors only.
DrawnExtents::DrawnExtents(Deferred deferred, const std::optional<osg::Vec3d> &eye,
                           const osg::Matrix &toScene)
    : osg::NodeVisitor(deferred == Deferred::Made ? CULL_VISITOR : NODE_VISITOR,
                       TRAVERSE_ACTIVE_CHILDREN)
    , m_eye(eye)
    , m_toScene{toScene}
{}

void DrawnExtents::apply(osg::Node &node)
{
    if (node.asGroup() || getVisitorType() == CULL_VISITOR) {
        traverse(node);
        return;
    }
    const osg::BoundingSphere &bound = node.getBound();
    osg::BoundingBox box;
    box.expandBy(bound);
    for (unsigned corner = 0; bound.valid() && corner < 8; ++corner)
        m_extents.expandBy(osg::Vec3d(box.corner(corner)) * m_toScene.back());
}

void DrawnExtents::apply(osg::Drawable &drawable)
{
    if (dynamic_cast<const osgText::TextBase *>(&drawable))
        return; // its size may be in pixels
    const osg::BoundingBox &box = drawable.getBoundingBox();
    for (unsigned corner = 0; box.valid() && corner < 8; ++corner)
        m_extents.expandBy(osg::Vec3d(box.corner(corner)) * m_toScene.back());
}

void DrawnExtents::apply(osg::Transform &transform)
{
    osg::Matrix matrix = m_toScene.back();
    transform.computeLocalToWorldMatrix(matrix, this);
    m_toScene.push_back(matrix);
    traverse(transform);
    m_toScene.pop_back();
}

/// Cameras within a scene draw overlays or other pictures.
void DrawnExtents::apply(osg::Camera & /*camera*/) {}

void DrawnExtents::apply(osg::LOD &levels)
{
    if (!m_eye || levels.getRangeMode() != osg::LOD::DISTANCE_FROM_EYE_POINT) {
        for (unsigned level = 0; level < levels.getNumChildren(); ++level)
            levels.getChild(level)->accept(*this);
        return;
    }
    const double distance = (levels.getCenter() * m_toScene.back() - *m_eye).length();
    for (unsigned level = 0; level < levels.getNumChildren() && level < levels.getNumRanges();
         ++level) {
        if (distance >= levels.getMinRange(level) && distance < levels.getMaxRange(level))
            levels.getChild(level)->accept(*this);
    }
}

} // namespace vlt::snapshot
