#include "plugins/scene/reading/LocalFrame.h"

#include <utility>

namespace vlt::scene {

std::vector<contract::Place> placesOf(const std::vector<osg::Vec2d> &positions)
{
    std::vector<contract::Place> places;
    places.reserve(positions.size());
    for (const osg::Vec2d &position : positions)
        places.push_back({position.x(), position.y()});
    return places;
}

LocalFrame::LocalFrame(const OGRSpatialReference *srs, const std::vector<osg::Vec2d> &positions)
    : m_frame(std::make_shared<localframe::LocalFrame>(srs, placesOf(positions)))
{}

LocalFrame::LocalFrame(std::shared_ptr<const localframe::LocalFrame> frame)
    : m_frame(std::move(frame))
{}

osg::Vec2d LocalFrame::toFrame(const osg::Vec2d &position) const
{
    return toVector(m_frame->toFrame({position.x(), position.y()}));
}

osg::Vec2d LocalFrame::fromFrame(const osg::Vec2d &position) const
{
    return toVector(m_frame->fromFrame({position.x(), position.y()}));
}

} // namespace vlt::scene
