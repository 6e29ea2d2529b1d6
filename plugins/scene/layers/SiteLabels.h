#pragma once

#include <osg/Node>
#include <osgText/Font>

#include <string>

namespace vlt::scene {

/// Makes the names of sites, which share a font and a state.
class SiteLabels
{
public:
    SiteLabels();

    /// A name above a point, which faces the viewer and has the same size at every distance.
    ///
    /// @param name      UTF-8; a long one is cut
    /// @param visibleM  distance up to which it is visible
    osg::ref_ptr<osg::Node> make(const std::string &name, const osg::Vec3d &foot,
                                 double visibleM) const;

private:
    osg::ref_ptr<osgText::Font> m_font;
    osg::ref_ptr<osg::StateSet> m_state;
};

} // namespace vlt::scene
