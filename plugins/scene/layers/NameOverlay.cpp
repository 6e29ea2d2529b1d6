#include "plugins/scene/layers/NameOverlay.h"

#include "contract/SceneNames.h"
#include "plugins/scene/layers/SiteLabels.h"
#include "plugins/scene/layers/SymbolSize.h"
#include "plugins/scene/mesh/PictureHeight.h"

#include <osg/BlendFunc>
#include <osg/Depth>
#include <osg/LineWidth>
#include <osg/MatrixTransform>
#include <osg/ValueObject>
#include <osg/Viewport>
#include <osgUtil/CullVisitor>

#include <algorithm>
#include <cmath>

namespace vlt::scene {

namespace {

constexpr double SizePx = 14;
constexpr unsigned GlyphPx = 32;
const osgText::FontResolution GlyphSize(GlyphPx, GlyphPx);
constexpr double RoomPerNamePx = 16000; ///< of the picture, for "some" names
constexpr double MinNames = 12;
constexpr std::size_t MaxNames = 1500;
constexpr std::size_t SeenPerName = 5; ///< maximum number of places considered / names
constexpr double MarginPx = 2;
constexpr int AfterAll = 1000; ///< render bin
const osg::Vec4 Ink(0.07F, 0.09F, 0.13F, 1);
const osg::Vec4 Plate(1, 1, 1, 0.72F);

std::string shownNames(const osg::NodePath &path)
{
    std::string shown = contract::names::Some;
    for (const osg::Node *node : path)
        node->getUserValue(contract::names::Shown, shown);
    return shown;
}

void setUp(osg::Geometry &geometry, GLenum mode, const osg::Vec4 &color)
{
    geometry.setUseDisplayList(false);
    geometry.setDataVariance(osg::Object::DYNAMIC);
    geometry.setColorArray(new osg::Vec4Array(1, &color), osg::Array::BIND_OVERALL);
    geometry.addPrimitiveSet(new osg::DrawArrays(mode, 0, 0));
    geometry.setCullingActive(false);
}

void setPoints(osg::Geometry &geometry, osg::Vec3Array *points)
{
    static_cast<osg::DrawArrays *>(geometry.getPrimitiveSet(0))
        ->setCount(static_cast<GLsizei>(points->size()));
    geometry.setVertexArray(points);
}

} // namespace

/// A place in the picture.
struct NameOverlay::Seen
{
    std::size_t place = 0;
    double distanceM = 0;
    double x = 0;
    PictureRect taken;
};

NameOverlay::NameOverlay(std::vector<NamedPlace> places, const SiteMeasures &measures)
    : m_places(std::move(places))
    , m_measures(measures)
    , m_font(labelFont())
    , m_overlay(new osg::Projection)
    , m_drawn(new osg::Geode)
    , m_leaders(new osg::Geometry)
    , m_plates(new osg::Geometry)
{
    setCullingActive(false);
    setUp(*m_leaders, GL_LINES, Ink);
    setUp(*m_plates, GL_QUADS, Plate);

    osg::ref_ptr<osg::MatrixTransform> flat = new osg::MatrixTransform;
    flat->setReferenceFrame(osg::Transform::ABSOLUTE_RF);
    flat->setCullingActive(false);
    flat->addChild(m_drawn);
    m_drawn->setCullingActive(false);
    m_overlay->setCullingActive(false);
    m_overlay->addChild(flat);
    osg::StateSet *state = m_overlay->getOrCreateStateSet();
    state->setMode(GL_LIGHTING, osg::StateAttribute::OFF);
    state->setAttributeAndModes(new osg::Depth(osg::Depth::ALWAYS, 0, 1, false));
    state->setAttributeAndModes(new osg::LineWidth(1));
    state->setAttributeAndModes(
        new osg::BlendFunc(osg::BlendFunc::SRC_ALPHA, osg::BlendFunc::ONE_MINUS_SRC_ALPHA));
    state->setRenderBinDetails(AfterAll, "TraversalOrderBin",
                               osg::StateSet::OVERRIDE_RENDERBIN_DETAILS);
}

void NameOverlay::traverse(osg::NodeVisitor &visitor)
{
    osgUtil::CullVisitor *culling = visitor.asCullVisitor();
    const osg::Viewport *viewport = culling ? culling->getViewport() : nullptr;
    if (!viewport)
        return;
    const std::lock_guard lock(m_guard);
    View view{*culling->getModelViewMatrix(), *culling->getProjectionMatrix(), viewport->width(),
              viewport->height(), shownNames(visitor.getNodePath())};
    if (view != m_view) {
        m_view = std::move(view);
        place(m_view);
    }
    if (m_drawn->getNumChildren() > 0)
        m_overlay->accept(visitor);
}

void NameOverlay::place(const View &view)
{
    m_drawn->removeChildren(0, m_drawn->getNumChildren());
    if (view.shown == contract::names::None)
        return;
    const double unit = pictureUnit(view.heightPx);
    const bool areAll = view.shown == contract::names::All;
    const double suits = view.widthPx * view.heightPx / (unit * unit * RoomPerNamePx);
    const std::size_t budget =
        areAll ? MaxNames : static_cast<std::size_t>(std::max(suits, MinNames));

    std::vector<Seen> seen = seenIn(view);
    const auto last =
        seen.begin() + static_cast<std::ptrdiff_t>(std::min(seen.size(), budget * SeenPerName));
    std::partial_sort(seen.begin(), last, seen.end(), [](const Seen &one, const Seen &other) {
        return one.distanceM < other.distanceM;
    });
    seen.erase(last, seen.end());
    std::vector<NamedRoom> rooms;
    for (const Seen &one : seen) {
        const NamedPlace &place = m_places[one.place];
        rooms.push_back({one.x, one.taken, widthOf(one.place, SizePx * unit) + 2 * MarginPx,
                         SizePx * unit * 1.2, place.kind != NamedPlace::Kind::Line});
    }
    const PictureRect picture{MarginPx, MarginPx, view.widthPx - MarginPx,
                              view.heightPx - MarginPx};
    show(
        seen, rooms,
        placeNames(rooms, picture, areAll ? NameRule::OverOthers : NameRule::OnFreeGround, budget));
    m_overlay->setMatrix(osg::Matrix::ortho2D(0, view.widthPx, 0, view.heightPx));
}

std::vector<NameOverlay::Seen> NameOverlay::seenIn(const View &view) const
{
    std::vector<Seen> seen;
    const bool isParallel = view.projection(3, 3) == 1;
    for (std::size_t i = 0; i < m_places.size(); ++i) {
        const osg::Vec3d at = m_places[i].at * view.modelView;
        if (!isParallel && at.z() >= 0)
            continue;
        const osg::Vec3d flat = at * view.projection; // divided by w
        if (std::abs(flat.x()) > 1 || std::abs(flat.y()) > 1)
            continue;
        const osg::Vec3d pixel((flat.x() + 1) / 2 * view.widthPx,
                               (flat.y() + 1) / 2 * view.heightPx, 0);
        const double pxPerM =
            0.5 * view.heightPx * view.projection(1, 1) / (isParallel ? 1 : -at.z());
        seen.push_back(
            {i, at.length(), pixel.x(), takenBy(m_places[i], pixel, view, pxPerM, at.length())});
    }
    return seen;
}

PictureRect NameOverlay::takenBy(const NamedPlace &place, const osg::Vec3d &at, const View &view,
                                 double pxPerM, double distanceM) const
{
    const double unit = pictureUnit(view.heightPx);
    // a vertical and a level metre, as parts of a metre that faces the eye
    const double upright = std::max(view.modelView(2, 1), 0.0);
    const double level = std::max(view.modelView(2, 2), 0.0);
    const auto around = [&at](double half, double below, double above) {
        return PictureRect{at.x() - half, at.y() - below, at.x() + half, at.y() + above};
    };
    if (place.kind == NamedPlace::Kind::Line)
        return around(0, 4 * unit, 4 * unit);
    const bool hasSectors = place.kind == NamedPlace::Kind::Sectors;
    const double sectorPx = m_measures.sectorRadiusM * pxPerM;
    if (distanceM < m_measures.symbolicM) {
        const double mastPx = place.mastM * upright * pxPerM;
        if (!hasSectors || distanceM < m_measures.realisticM)
            return around(4 * unit, 2 * unit, mastPx + 2 * unit);
        const double reach = sectorPx * level;
        const double above = place.sectorsM * upright * pxPerM + reach;
        return around(sectorPx, std::max(2 * reach - above, 2 * unit), std::max(above, mastPx));
    }
    const SymbolSize size = symbolSize(place.spacingM * pxPerM, sectorPx, upright, unit);
    if (!hasSectors)
        return around(RoundShare * size.radiusPx, RoundShare * size.radiusPx,
                      RoundShare * size.radiusPx);
    const double reach = size.radiusPx * std::max(level, LeastLevel);
    return around(size.radiusPx, std::max(reach - size.mastPx, unit), size.mastPx + reach);
}

double NameOverlay::widthOf(std::size_t place, double sizePx)
{
    if (sizePx != m_sizePx) {
        m_texts.clear();
        m_widths.assign(m_places.size(), 0);
    }
    m_sizePx = sizePx;
    float &width = m_widths[place];
    if (width == 0) {
        for (const unsigned letter : labelText(m_places[place].name)) {
            if (const osgText::Glyph *glyph = m_font->getGlyph(GlyphSize, letter))
                width += glyph->getHorizontalAdvance() * static_cast<float>(sizePx);
        }
    }
    return width;
}

osgText::Text &NameOverlay::textOf(std::size_t place)
{
    if (m_texts.size() > 2 * MaxNames)
        m_texts.clear();
    osg::ref_ptr<osgText::Text> &text = m_texts[place];
    if (!text) {
        text = new osgText::Text;
        text->setDataVariance(osg::Object::DYNAMIC);
        text->setFont(m_font);
        text->setFontResolution(GlyphPx, GlyphPx);
        text->setCharacterSize(static_cast<float>(m_sizePx));
        text->setAlignment(osgText::TextBase::LEFT_BASE_LINE);
        text->setText(labelText(m_places[place].name));
        text->setColor(Ink);
        // outlines of letters would take a software renderer most of its time
        text->setShaderTechnique(osgText::NO_TEXT_SHADER);
        text->setName(m_places[place].name);
        text->setCullingActive(false);
    }
    return *text;
}

void NameOverlay::show(const std::vector<Seen> &seen, const std::vector<NamedRoom> &rooms,
                       const std::vector<PlacedName> &names)
{
    osg::ref_ptr<osg::Vec3Array> lines = new osg::Vec3Array;
    osg::ref_ptr<osg::Vec3Array> plates = new osg::Vec3Array;
    for (const auto &[index, rect, hasLeader] : names) {
        for (const auto &[x, y] : {std::pair(rect.left, rect.bottom),
                                   {rect.right, rect.bottom},
                                   {rect.right, rect.top},
                                   {rect.left, rect.top}})
            plates->push_back(osg::Vec3d(x, y, 0));
        if (!hasLeader)
            continue;
        lines->push_back(osg::Vec3d(rooms[index].x, rooms[index].taken.top, 0));
        lines->push_back(osg::Vec3d((rect.left + rect.right) / 2, rect.bottom, 0));
    }
    setPoints(*m_leaders, lines);
    setPoints(*m_plates, plates);
    if (!lines->empty())
        m_drawn->addDrawable(m_leaders);
    if (!plates->empty())
        m_drawn->addDrawable(m_plates);
    for (const PlacedName &name : names) {
        osgText::Text &text = textOf(seen[name.index].place);
        constexpr double BelowBaseLine = 0.3;
        text.setPosition(osg::Vec3d(std::round(name.rect.left + MarginPx),
                                    std::round(name.rect.bottom + BelowBaseLine * m_sizePx), 0));
        m_drawn->addDrawable(&text);
    }
}

void NameOverlay::resizeGLObjectBuffers(unsigned int maxSize)
{
    osg::Node::resizeGLObjectBuffers(maxSize);
    m_overlay->resizeGLObjectBuffers(maxSize);
}

void NameOverlay::releaseGLObjects(osg::State *state) const
{
    osg::Node::releaseGLObjects(state);
    m_overlay->releaseGLObjects(state);
    for (const auto &[place, text] : m_texts)
        text->releaseGLObjects(state);
}

} // namespace vlt::scene
