#include "plugins/scene/mesh/PictureHeight.h"

#include <osg/Viewport>
#include <osgUtil/CullVisitor>

#include <algorithm>

namespace vlt::scene {

void PictureHeight::operator()(osg::Node *node, osg::NodeVisitor *visitor)
{
    osgUtil::CullVisitor *culling = visitor->asCullVisitor();
    const osg::Viewport *viewport = culling ? culling->getViewport() : nullptr;
    if (!viewport) {
        traverse(node, visitor);
        return;
    }
    const osg::ref_ptr<osg::StateSet> state = stateFor(viewport->height());
    culling->pushStateSet(state);
    traverse(node, visitor);
    culling->popStateSet();
}

osg::ref_ptr<osg::StateSet> PictureHeight::stateFor(double heightPx)
{
    const std::lock_guard lock(m_guard);
    if (!m_state || m_heightPx != heightPx) {
        m_heightPx = heightPx;
        m_state = new osg::StateSet;
        m_state->addUniform(new osg::Uniform("pictureHeight", static_cast<float>(heightPx)));
    }
    return m_state;
}

double pictureUnit(double heightPx)
{
    return std::clamp(heightPx / 720, 1.0, 4.0);
}

} // namespace vlt::scene
