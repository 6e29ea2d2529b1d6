#include "plugins/scene/link/LinkZones.h"

#include "plugins/scene/link/LinkStates.h"
#include "plugins/scene/mesh/DeferredNode.h"
#include "plugins/scene/mesh/NearParts.h"
#include "plugins/scene/mesh/Solids.h"

#include <osg/Geode>
#include <osg/LOD>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace vlt::scene {

namespace {

constexpr std::size_t SolidVertices = 2000000; ///< maximum for up to 10000 links
constexpr int StripPieces = 12;

// distances, in half widths of an ellipsoid
constexpr double Near = 100;     ///< the ellipsoid is about 30 pixels wide there
constexpr double Unseen = 10000; ///< it is less than one pixel wide there, also in large pictures

/// The colour of one wall, so that two walls together have the opacity of `color`.
Color forOneOfTwoWalls(Color color)
{
    const double through = std::sqrt(1 - color.a() / 255.0);
    color.a() = static_cast<unsigned char>(std::lround(255 * (1 - through)));
    return color;
}

osg::ref_ptr<osg::Geode> geodeOf(osg::Geometry *geometry)
{
    osg::ref_ptr<osg::Geode> geode = new osg::Geode;
    geode->addDrawable(geometry);
    return geode;
}

/// A mesh of strips with the data from which the graphics card turns them, see makeStripState().
struct StripMesh
{
    Mesh mesh;
    osg::ref_ptr<osg::Vec4Array> asides = new osg::Vec4Array;
    osg::ref_ptr<osg::Vec4Array> centres = new osg::Vec4Array;

    unsigned vertex(const Ellipsoid &ellipsoid, const osg::Vec3d &middle, const osg::Vec3d &aside,
                    double side, const Color &color)
    {
        asides->push_back(osg::Vec4(aside, static_cast<float>(side)));
        centres->push_back(
            osg::Vec4(ellipsoid.centre, static_cast<float>(Near * ellipsoid.halfWidth)));
        return mesh.vertex(middle + aside, ellipsoid.along, color);
    }
};

/// The outline of an ellipsoid as a strip between its tips.
void addStrip(StripMesh &strip, const Ellipsoid &ellipsoid, const Color &color)
{
    osg::Vec3d axis = ellipsoid.along;
    axis.normalize();
    const osg::Vec3d across = acrossOf(axis) * ellipsoid.halfWidth;
    const auto tip = [&](double end) {
        return strip.vertex(ellipsoid, ellipsoid.centre + ellipsoid.along * end, {}, 0, color);
    };
    const unsigned start = tip(-1);
    unsigned last = start;
    for (int piece = 1; piece < StripPieces; ++piece) {
        const double angle = std::numbers::pi * piece / StripPieces;
        const osg::Vec3d middle = ellipsoid.centre - ellipsoid.along * std::cos(angle);
        const osg::Vec3d aside = across * std::sin(angle);
        const unsigned left = strip.vertex(ellipsoid, middle, aside, 1, color);
        const unsigned right = strip.vertex(ellipsoid, middle, -aside, -1, color);
        if (piece == 1)
            strip.mesh.triangle(start, right, left);
        else
            strip.mesh.quad(last, last + 1, right, left);
        last = left;
    }
    strip.mesh.triangle(last, last + 1, tip(1));
}

} // namespace

LinkZones::Fineness LinkZones::finenessFor(std::size_t links)
{
    static constexpr std::array<Fineness, 6> Finest = {
        {{32, 64}, {24, 48}, {20, 32}, {16, 24}, {12, 16}, {8, 10}}};
    for (const Fineness &fineness : Finest) {
        const int vertices = fineness.around * (fineness.along - 1) + 2;
        if (links * static_cast<std::size_t>(vertices) <= SolidVertices)
            return fineness;
    }
    return Finest.back();
}

LinkZones::LinkZones(std::size_t links, const LinkAppearance &appearance)
    : m_areFew(links <= FewZones)
    , m_haveLines(appearance.color.a() > 0)
    , m_fineness(finenessFor(links))
    , m_color(appearance.fresnelColor)
    , m_wallColor(forOneOfTwoWalls(m_color))
{
    const Opacity opacity = m_color.a() < 255 ? Opacity::Translucent : Opacity::Opaque;
    m_solidState = makeEllipsoidState(opacity);
    m_stripState = makeStripState(opacity);
}

osg::ref_ptr<osg::Node> LinkZones::solids(const std::vector<Ellipsoid> &ellipsoids) const
{
    Mesh mesh;
    for (const Ellipsoid &ellipsoid : ellipsoids)
        addSpheroid(mesh, ellipsoid.centre, ellipsoid.along, ellipsoid.halfWidth, m_fineness.around,
                    m_fineness.along, m_wallColor);
    osg::ref_ptr<osg::Geometry> geometry = new osg::Geometry;
    mesh.fill(*geometry);
    geometry->setStateSet(m_solidState);
    return geodeOf(geometry);
}

osg::ref_ptr<osg::Node> LinkZones::strips(const std::vector<Ellipsoid> &ellipsoids) const
{
    StripMesh strip;
    double widest = 0;
    for (const Ellipsoid &ellipsoid : ellipsoids) {
        addStrip(strip, ellipsoid, m_color);
        widest = std::max(widest, ellipsoid.halfWidth);
    }
    osg::ref_ptr<osg::Geometry> geometry = new osg::Geometry;
    strip.mesh.fill(*geometry);
    geometry->setTexCoordArray(0, strip.asides);
    geometry->setTexCoordArray(1, strip.centres);
    geometry->setStateSet(m_stripState);
    osg::BoundingBox turned = geometry->getBoundingBox();
    const auto half = static_cast<float>(widest);
    turned.expandBy(turned._min - osg::Vec3(half, half, half));
    turned.expandBy(turned._max + osg::Vec3(half, half, half));
    geometry->setInitialBound(turned);
    const osg::ref_ptr<osg::Geode> geode = geodeOf(geometry);
    if (!m_haveLines)
        return geode;
    osg::ref_ptr<osg::LOD> seen = new osg::LOD;
    seen->addChild(geode, 0, static_cast<float>(geode->getBound().radius() + Unseen * widest));
    return seen;
}

osg::ref_ptr<osg::Node> LinkZones::build(const std::vector<Ellipsoid> &ellipsoids) const
{
    if (m_areFew)
        return solids(ellipsoids);
    const osg::ref_ptr<NearParts> near = new NearParts;
    for (const Ellipsoid &ellipsoid : ellipsoids) {
        const osg::BoundingSphere bound(
            ellipsoid.centre, static_cast<float>(ellipsoid.along.length() + ellipsoid.halfWidth));
        near->addPart(new DeferredNode(
                          [zones = *this, ellipsoid] { return zones.solids({ellipsoid}); }, bound),
                      {ellipsoid.centre, ellipsoid.along, Near * ellipsoid.halfWidth});
    }
    osg::ref_ptr<osg::Group> both = new osg::Group;
    both->addChild(strips(ellipsoids));
    both->addChild(near);
    return both;
}

} // namespace vlt::scene
