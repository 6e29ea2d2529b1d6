#include "preview/ExtentsVisitor.h"

#include <osg/Drawable>
#include <osg/Transform>
#include <osgText/TextBase>

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
    osg::BoundingBox box;
    box.expandBy(node.getBound());
    for (unsigned corner = 0; box.valid() && corner < 8; ++corner)
        m_extents.expandBy(box.corner(corner) * m_matrices.back());
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
        m_extents.expandBy(box.corner(corner) * m_matrices.back());
}
