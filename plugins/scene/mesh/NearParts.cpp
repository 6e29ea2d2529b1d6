#include "plugins/scene/mesh/NearParts.h"

#include <algorithm>

namespace vlt::scene {

namespace {

bool isWithin(const NearParts::Reach &reach, const osg::Vec3d &eye)
{
    const osg::Vec3d toEye = eye - reach.centre;
    const double at = std::clamp(toEye * reach.along / reach.along.length2(), -1.0, 1.0);
    return (toEye - reach.along * at).length2() < reach.distanceM * reach.distanceM;
}

} // namespace

void NearParts::addPart(osg::Node *part, const Reach &reach)
{
    addChild(part);
    m_reaches.push_back(reach);
}

void NearParts::traverse(osg::NodeVisitor &visitor)
{
    if (visitor.getVisitorType() != osg::NodeVisitor::CULL_VISITOR) {
        osg::Group::traverse(visitor);
        return;
    }
    const osg::Vec3d eye = visitor.getEyePoint();
    for (std::size_t i = 0; i < m_reaches.size(); ++i) {
        if (isWithin(m_reaches[i], eye))
            getChild(static_cast<unsigned>(i))->accept(visitor);
    }
}

} // namespace vlt::scene
