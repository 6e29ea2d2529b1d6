#pragma once

#include "localframe/LocalFrame.h"

#include <osg/Vec2d>

#include <memory>
#include <vector>

namespace vlt::scene {

inline osg::Vec2d toVector(const contract::Place &place)
{
    return {place.x, place.y};
}

std::vector<contract::Place> placesOf(const std::vector<osg::Vec2d> &positions);

/// localframe::LocalFrame with the vectors of the scene library.
class LocalFrame
{
public:
    LocalFrame(const OGRSpatialReference *srs, const std::vector<osg::Vec2d> &positions);
    explicit LocalFrame(std::shared_ptr<const localframe::LocalFrame> frame);

    osg::Vec2d centre() const { return toVector(m_frame->centre()); }
    osg::Vec2d toFrame(const osg::Vec2d &position) const;
    osg::Vec2d fromFrame(const osg::Vec2d &position) const;

    const localframe::LocalFrame &plain() const { return *m_frame; }

private:
    std::shared_ptr<const localframe::LocalFrame> m_frame;
};

} // namespace vlt::scene
