#pragma once

#include <osg/Node>
#include <osgText/Font>

#include <string>

namespace vlt::scene {

/// Makes names of sites that share font and state.
class SiteLabels
{
public:
    SiteLabels();

    /// A name that stands on a point, turns to the viewer and is as large as the picture asks for.
    ///
    /// @param name  UTF-8; cut where it is too long to be read
    /// @param visibleM  it is seen up to this distance
    osg::ref_ptr<osg::Node> make(const std::string &name, const osg::Vec3d &foot,
                                 double visibleM) const;

private:
    osg::ref_ptr<osgText::Font> m_font;
    osg::ref_ptr<osg::StateSet> m_state;
};

} // namespace vlt::scene
