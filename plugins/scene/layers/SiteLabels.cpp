#include "plugins/scene/layers/SiteLabels.h"

#include <osg/Depth>
#include <osg/LOD>
#include <osgText/Text>

namespace vlt::scene {

namespace {

constexpr unsigned MaxNameCharacters = 60;
constexpr float SizePixels = 16;
constexpr unsigned GlyphPixels = 32;
constexpr int AfterTranslucentBins = 20;

} // namespace

osg::ref_ptr<osgText::Font> labelFont()
{
    for (const char *file :
         {"/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf",
          "/usr/share/fonts/dejavu/DejaVuSans.ttf", "/usr/share/fonts/TTF/DejaVuSans.ttf",
          "/usr/share/fonts/truetype/liberation/LiberationSans-Regular.ttf",
          "/usr/share/fonts/truetype/noto/NotoSans-Regular.ttf", "fonts/arial.ttf"}) {
        if (osg::ref_ptr<osgText::Font> font = osgText::readRefFontFile(file))
            return font;
    }
    return osgText::Font::getDefaultFont();
}

osgText::String labelText(const std::string &name)
{
    osgText::String shown(name, osgText::String::ENCODING_UTF8);
    if (shown.size() > MaxNameCharacters) {
        shown.resize(MaxNameCharacters - 1);
        shown.push_back(0x2026); // ellipsis
    }
    return shown;
}

SiteLabels::SiteLabels() : m_font(labelFont()), m_state(new osg::StateSet)
{
    m_state->setMode(GL_LIGHTING, osg::StateAttribute::OFF);
    m_state->setAttributeAndModes(new osg::Depth(osg::Depth::LEQUAL, 0, 1, false));
    m_state->setRenderBinDetails(AfterTranslucentBins, "DepthSortedBin",
                                 osg::StateSet::OVERRIDE_RENDERBIN_DETAILS);
}

osg::ref_ptr<osg::Node> SiteLabels::make(const std::string &name, const osg::Vec3d &foot,
                                         double visibleM) const
{
    osg::ref_ptr<osgText::Text> text = new osgText::Text;
    text->setFont(m_font);
    text->setFontResolution(GlyphPixels, GlyphPixels);
    text->setText(labelText(name));
    text->setPosition(foot);
    text->setAlignment(osgText::TextBase::CENTER_BOTTOM);
    text->setAxisAlignment(osgText::TextBase::SCREEN);
    text->setCharacterSizeMode(osgText::TextBase::SCREEN_COORDS);
    text->setCharacterSize(SizePixels);
    text->setColor(osg::Vec4(1, 1, 1, 1));
    text->setBackdropType(osgText::Text::OUTLINE);
    text->setBackdropColor(osg::Vec4(0.08F, 0.1F, 0.14F, 1));
    text->setName(name);
    osg::ref_ptr<osg::LOD> near = new osg::LOD;
    near->setCenterMode(osg::LOD::USER_DEFINED_CENTER);
    near->setCenter(foot);
    near->setStateSet(m_state); // on this node, because a text has a state of its own
    near->addChild(text, 0, static_cast<float>(visibleM));
    return near;
}

} // namespace vlt::scene
