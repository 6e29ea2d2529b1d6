#include "preview/ExtentsVisitor.h"

#include <osg/Drawable>
#include <osg/Transform>

ExtentsVisitor::ExtentsVisitor() : osg::NodeVisitor(TRAVERSE_ALL_CHILDREN)
{
    m_matrices.emplace_back();
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
    const osg::BoundingBox &box = drawable.getBoundingBox();
    for (unsigned corner = 0; box.valid() && corner < 8; ++corner)
        m_extents.expandBy(box.corner(corner) * m_matrices.back());
}
