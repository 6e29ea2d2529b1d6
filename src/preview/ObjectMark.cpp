#include "preview/ObjectMark.h"

#include "picking/ObjectEdges.h"

#include <osg/AutoTransform>
#include <osg/Depth>
#include <osg/Geode>
#include <osg/Geometry>
#include <osg/LineWidth>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace {

using vlt::picking::Kind;
using Points = std::vector<osg::Vec3>; ///< pairs: from, to

constexpr double SiteRingPx = 20;
constexpr double EndRingPx = 9; ///< at an end of a link
constexpr int RingSides = 40;
constexpr int AboveAll = 1000; ///< number of a render bin
const osg::Vec4ub Bright(255, 214, 0, 255);
const osg::Vec4ub Dark(20, 20, 20, 255);

osg::ref_ptr<osg::StateSet> stateOf(double widthPx, int order)
{
    osg::ref_ptr<osg::StateSet> state = new osg::StateSet;
    state->setMode(GL_LIGHTING, osg::StateAttribute::OFF);
    state->setAttributeAndModes(new osg::Depth(osg::Depth::ALWAYS, 0, 1, false));
    state->setAttributeAndModes(new osg::LineWidth(static_cast<float>(widthPx)));
    state->setRenderBinDetails(AboveAll + order, "RenderBin");
    return state;
}

/// Bright lines with a dark casing.
osg::ref_ptr<osg::Geode> linesOf(const Points &points, double unitPx)
{
    osg::ref_ptr<osg::Geode> geode = new osg::Geode;
    osg::ref_ptr<osg::Vec3Array> vertices = new osg::Vec3Array(points.begin(), points.end());
    int order = 0;
    for (const auto &[color, widthPx] : {std::pair(Dark, 5.0), std::pair(Bright, 2.5)}) {
        osg::ref_ptr<osg::Vec4ubArray> colors = new osg::Vec4ubArray(1, &color);
        colors->setNormalize(true);
        osg::ref_ptr<osg::Geometry> geometry = new osg::Geometry;
        geometry->setUseDisplayList(false);
        geometry->setUseVertexBufferObjects(true);
        geometry->setVertexArray(vertices);
        geometry->setColorArray(colors, osg::Array::BIND_OVERALL);
        geometry->addPrimitiveSet(
            new osg::DrawArrays(GL_LINES, 0, static_cast<GLsizei>(points.size())));
        geometry->setStateSet(stateOf(widthPx * unitPx, order++));
        geode->addDrawable(geometry);
    }
    return geode;
}

osg::ref_ptr<osg::Node> ringAt(const osg::Vec3d &place, double radiusPx, double unitPx)
{
    Points points;
    const auto corner = [&](int side) {
        const double angle = 2 * osg::PI * side / RingSides;
        return osg::Vec3(osg::Vec3d(std::cos(angle), std::sin(angle), 0) * radiusPx * unitPx);
    };
    for (int side = 0; side < RingSides; ++side)
        points.insert(points.end(), {corner(side), corner(side + 1)});
    osg::ref_ptr<osg::AutoTransform> ring = new osg::AutoTransform;
    ring->setPosition(place);
    ring->setAutoRotateMode(osg::AutoTransform::ROTATE_TO_SCREEN);
    ring->setAutoScaleToScreen(true);
    ring->addChild(linesOf(points, unitPx));
    return ring;
}

} // namespace

osg::ref_ptr<osg::Group> markOf(osg::Node &scene, const vlt::picking::SceneObjects &objects,
                                std::size_t object, double unitPx)
{
    osg::ref_ptr<osg::Group> mark = new osg::Group;
    const osg::Vec3d place = objects.place(object);
    switch (objects.kind()) {
    case Kind::Site: {
        const osg::Vec3d top = place + osg::Vec3d(0, 0, objects.sizeM(object));
        mark->addChild(linesOf({place, top}, unitPx));
        mark->addChild(ringAt((place + top) / 2, SiteRingPx, unitPx));
        break;
    }
    case Kind::Link: {
        const osg::Vec3d other = objects.place(object, 1);
        mark->addChild(linesOf({place, other}, unitPx));
        mark->addChild(ringAt(place, EndRingPx, unitPx));
        mark->addChild(ringAt(other, EndRingPx, unitPx));
        break;
    }
    case Kind::Building: {
        const Points edges = vlt::picking::edgesOf(scene, object);
        mark->addChild(edges.empty() ? ringAt(place, EndRingPx, unitPx)
                                     : osg::ref_ptr<osg::Node>(linesOf(edges, unitPx)));
        break;
    }
    }
    return mark;
}
