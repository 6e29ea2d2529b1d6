#pragma once

#include <osg/Node>
#include <osg/NodeVisitor>

#include <atomic>
#include <functional>
#include <mutex>

namespace vlt::scene {

/// A node that makes its content just before it is drawn for the first time. Its bound is given
/// from the start, so that the nodes above it do not change then. Several threads may draw it.
class DeferredNode : public osg::Node
{
public:
    using Maker = std::function<osg::ref_ptr<osg::Node>()>;

    DeferredNode(Maker maker, const osg::BoundingSphere &bound);

    bool isMade() const { return m_made; }

    void traverse(osg::NodeVisitor &visitor) override;
    osg::BoundingSphere computeBound() const override { return m_bound; }
    void resizeGLObjectBuffers(unsigned int maxSize) override;
    void releaseGLObjects(osg::State *state) const override;

protected:
    ~DeferredNode() override = default;

private:
    Maker m_maker;
    osg::BoundingSphere m_bound;
    osg::ref_ptr<osg::Node> m_content;
    std::once_flag m_once;
    std::atomic<bool> m_made = false;
};

} // namespace vlt::scene
