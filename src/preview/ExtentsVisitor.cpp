#include "preview/ExtentsVisitor.h"

#include <osg/Drawable>
#include <osg/Transform>
#include <osgText/TextBase>

#include <numbers>

ExtentsVisitor::ExtentsVisitor() : osg::NodeVisitor(TRAVERSE_ALL_CHILDREN)
{
    m_matrices.emplace_back();
}

void ExtentsVisitor::apply(osg::Node &node)
{
    if (node.asGroup()) {
        traverse(node);
        return;
    }
    osg::BoundingSphere inside = node.getBound();
    if (!inside.valid())
        return;
    inside.radius() *= std::numbers::inv_sqrt3_v<float>;
    osg::BoundingBox box;
    box.expandBy(inside);
    for (unsigned corner = 0; corner < 8; ++corner)
        m_deferred.expandBy(box.corner(corner) * m_matrices.back());
}

osg::BoundingBox ExtentsVisitor::extents() const
{
    osg::BoundingBox all = m_made;
    all.expandBy(m_deferred);
    if (m_made.valid() && m_made.radius() > 0) {
        all.zMin() = m_made.zMin();
        all.zMax() = m_made.zMax();
    }
    return all;
}

void ExtentsVisitor::apply(osg::Transform &transform)
{
    osg::Matrix matrix = m_matrices.back();
    transform.computeLocalToWorldMatrix(matrix, this);
    m_matrices.push_back(matrix);
    traverse(transform);
    m_matrices.pop_back();
}

void ExtentsVisitor::apply(osg::Drawable &drawable)
{
    if (dynamic_cast<const osgText::TextBase *>(&drawable)) // its size is constant on the screen
        return;
    // not getBoundingBox(), which may be larger for culling
    const osg::BoundingBox box = drawable.computeBoundingBox();
    for (unsigned corner = 0; box.valid() && corner < 8; ++corner)
        m_made.expandBy(box.corner(corner) * m_matrices.back());
}
