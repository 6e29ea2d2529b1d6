#include "plugins/scene/mesh/DeferredNode.h"

namespace vlt::scene {

DeferredNode::DeferredNode(Maker maker, const osg::BoundingSphere &bound)
    : m_maker(std::move(maker))
    , m_bound(bound)
{}

void DeferredNode::traverse(osg::NodeVisitor &visitor)
{
    if (visitor.getVisitorType() == osg::NodeVisitor::CULL_VISITOR)
        std::call_once(m_once, [this] {
            m_content = m_maker();
            m_maker = nullptr;
            m_made = true;
        });
    if (m_made && m_content)
        m_content->accept(visitor);
}

void DeferredNode::resizeGLObjectBuffers(unsigned int maxSize)
{
    osg::Node::resizeGLObjectBuffers(maxSize);
    if (m_made && m_content)
        m_content->resizeGLObjectBuffers(maxSize);
}

void DeferredNode::releaseGLObjects(osg::State *state) const
{
    osg::Node::releaseGLObjects(state);
    if (m_made && m_content)
        m_content->releaseGLObjects(state);
}

} // namespace vlt::scene
