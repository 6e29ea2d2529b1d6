#pragma once

#include <osg/Node>
#include <osgText/Font>
#include <osgText/String>

#include <string>

namespace vlt::scene {

/// A font with the letters of most languages; the built-in one has few.
osg::ref_ptr<osgText::Font> labelFont();

/// The text of a name in UTF-8; a long one is cut.
osgText::String labelText(const std::string &name);

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
