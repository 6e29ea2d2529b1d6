#include "plugins/scene/link/LinkFactory.h"

#include "linkpath/Fresnel.h"
#include "plugins/scene/link/LinkStates.h"
#include "plugins/scene/mesh/DeferredNode.h"
#include "plugins/scene/mesh/Solids.h"

#include <osg/Geode>
#include <osg/LOD>
#include <osg/MatrixTransform>

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <limits>

namespace vlt::scene {

namespace {

constexpr std::size_t EllipsoidVertices = 2000000; ///< maximum for up to 10000 links
constexpr std::size_t FewLinks = 2000;             ///< up to this number tubes are rounder
constexpr double PointLength = 3;                  ///< of a pointed end, in widths of the line
constexpr double PointM = 0.1;                     ///< width at the end point

/// Number of vertices around an ellipsoid, and of pieces along it.
struct Fineness
{
    int around;
    int along;
};

Fineness finenessFor(std::size_t links)
{
    static constexpr std::array<Fineness, 6> Finest = {
        {{32, 64}, {24, 48}, {20, 32}, {16, 24}, {12, 16}, {8, 10}}};
    for (const Fineness &fineness : Finest) {
        const int vertices = fineness.around * (fineness.along - 1) + 2;
        if (links * static_cast<std::size_t>(vertices) <= EllipsoidVertices)
            return fineness;
    }
    return Finest.back();
}

// distances, in half widths of an ellipsoid
constexpr double Afar = 400;     ///< the ellipsoid is a few pixels wide there
constexpr double Unseen = 10000; ///< it is less than one pixel wide there, also in large pictures

Fineness finenessFromAfar(std::size_t links)
{
    constexpr std::size_t Many = 20000;
    return links <= Many ? Fineness{6, 10} : Fineness{4, 6};
}

/// The colour of one wall, so that two walls together have the opacity of `color`.
Color forOneOfTwoWalls(Color color)
{
    const double through = std::sqrt(1 - color.a() / 255.0);
    color.a() = static_cast<unsigned char>(std::lround(255 * (1 - through)));
    return color;
}

Opacity opacityOf(const Color &color)
{
    return color.a() < 255 ? Opacity::Translucent : Opacity::Opaque;
}

/// The shape of an ellipsoid, in the coordinates of a tile.
struct Ellipsoid
{
    osg::Vec3d centre;
    osg::Vec3d along; ///< vector from the centre to a tip
    double halfWidth;
};

using Ellipsoids = std::vector<Ellipsoid>;

osg::ref_ptr<osg::Node> drawn(const Ellipsoids &ellipsoids, Fineness fineness, const Color &color,
                              osg::StateSet *state)
{
    Mesh mesh;
    for (const Ellipsoid &ellipsoid : ellipsoids)
        addSpheroid(mesh, ellipsoid.centre, ellipsoid.along, ellipsoid.halfWidth, fineness.around,
                    fineness.along, color);
    osg::ref_ptr<osg::Geometry> geometry = new osg::Geometry;
    mesh.fill(*geometry);
    geometry->setStateSet(state);
    osg::ref_ptr<osg::Geode> geode = new osg::Geode;
    geode->addDrawable(geometry);
    return geode;
}

/// A mesh of lines of sight. Bands also have a vector from their centre line to each vertex.
struct LineMesh
{
    explicit LineMesh(LinkStyle style)
        : mesh(style == LinkStyle::Line ? Mesh::Kind::Lines : Mesh::Kind::Solid)
    {}
    Mesh mesh;
    osg::ref_ptr<osg::Vec4Array> asides = new osg::Vec4Array;
};

/// A point of a line of sight, and the width of the line there.
struct Station
{
    osg::Vec3d at;
    double breadth;
};

/// The points of a line of sight with pointed ends. A wide line would hide the antennas otherwise.
std::array<Station, 4> stationsOf(const osg::Vec3d &a, const osg::Vec3d &b, double breadth)
{
    osg::Vec3d axis = b - a;
    const double length = axis.normalize();
    const osg::Vec3d point = axis * std::min(PointLength * breadth, length / 4);
    const double end = std::min(breadth, PointM);
    return {{{a, end}, {a + point, breadth}, {b - point, breadth}, {b, end}}};
}

void addBand(LineMesh &band, const std::array<Station, 4> &stations, const Color &color)
{
    osg::Vec3d axis = stations[3].at - stations[0].at;
    axis.normalize();
    const osg::Vec3d across = acrossOf(axis);
    unsigned last = 0;
    for (const Station &station : stations) {
        unsigned next = 0;
        for (const float side : {1.F, -1.F}) {
            const osg::Vec3d aside = across * (side * station.breadth / 2);
            band.asides->push_back(osg::Vec4(aside, side));
            next = band.mesh.vertex(station.at + aside, axis, color);
        }
        if (&station != stations.data())
            band.mesh.quad(last, next, next - 1, last - 1);
        last = next;
    }
}

void addPointedTube(Mesh &mesh, const std::array<Station, 4> &stations, int sides,
                    const Color &color)
{
    for (std::size_t i = 0; i + 1 < stations.size(); ++i)
        addTube(mesh, stations[i].at, stations[i + 1].at, stations[i].breadth / 2,
                stations[i + 1].breadth / 2, sides, color, i == 1 ? Ends::Open : Ends::Closed);
}

/// Builds the tiles of a scene.
class LinkBuilder
{
public:
    LinkBuilder(const std::vector<LinkObject> &links, const LinkAppearance &appearance)
        : m_links(links)
        , m_appearance(appearance)
        , m_fineness(finenessFor(links.size()))
        , m_zoneColor(forOneOfTwoWalls(appearance.fresnelColor))
        , m_hairlines(makeHairlineState())
    {
        for (const Opacity opacity : {Opacity::Opaque, Opacity::Translucent}) {
            m_lines[static_cast<std::size_t>(opacity)] = makeLineState(appearance, opacity);
            m_ellipsoids[static_cast<std::size_t>(opacity)] = makeEllipsoidState(opacity);
        }
    }

    using Picked = std::vector<const LinkObject *>;

    /// Divides the links into halves, across their longer extent, until each part fits into a tile.
    void addTiles(osg::Group &group, Picked links) const
    {
        if (links.size() <= LinksPerTile) {
            if (!links.empty())
                group.addChild(tile(links));
            return;
        }
        osg::BoundingBoxd middles;
        for (const LinkObject *link : links)
            middles.expandBy((link->a + link->b) / 2);
        const osg::Vec3d size = middles._max - middles._min;
        const int axis = size.x() > size.y() ? 0 : 1;
        const auto half = links.begin() + static_cast<std::ptrdiff_t>(links.size() / 2);
        std::nth_element(links.begin(), half, links.end(),
                         [axis](const LinkObject *one, const LinkObject *other) {
                             return one->a[axis] + one->b[axis] < other->a[axis] + other->b[axis];
                         });
        addTiles(group, Picked(links.begin(), half));
        addTiles(group, Picked(half, links.end()));
    }

private:
    osg::ref_ptr<osg::Node> tile(const Picked &links) const
    {
        osg::BoundingBoxd ends;
        for (const LinkObject *link : links) {
            ends.expandBy(link->a);
            ends.expandBy(link->b);
        }
        const osg::Vec3d origin = ends.center();
        osg::ref_ptr<osg::Geode> geode = new osg::Geode;
        addLines(*geode, links, origin);
        // Vertices in single precision need small coordinates: optimisers must keep the transform.
        osg::ref_ptr<osg::MatrixTransform> place =
            new osg::MatrixTransform(osg::Matrixd::translate(origin));
        place->setDataVariance(osg::Object::DYNAMIC);
        if (geode->getNumDrawables() > 0)
            place->addChild(geode);
        if (m_appearance.fresnelZone > 0 && m_appearance.fresnelColor.a() > 0)
            addEllipsoids(*place, ellipsoidsOf(links, origin));
        return place;
    }

    void addLines(osg::Geode &geode, const Picked &links, const osg::Vec3d &origin) const
    {
        std::array<LineMesh, 2> lines = {LineMesh(m_appearance.style),
                                         LineMesh(m_appearance.style)};
        Mesh hairlines(Mesh::Kind::Lines);
        for (const LinkObject *link : links) {
            const Color color = link->color.value_or(m_appearance.color);
            if (color.a() == 0)
                continue;
            const osg::Vec3d a = link->a - origin;
            const osg::Vec3d b = link->b - origin;
            const Opacity opacity = opacityOf(color);
            addLine(lines[static_cast<std::size_t>(opacity)], a, b, color);
            if (m_appearance.style != LinkStyle::Line && opacity == Opacity::Opaque)
                hairlines.line(hairlines.vertex(a, {}, color), hairlines.vertex(b, {}, color));
        }
        for (std::size_t i = 0; i < lines.size(); ++i)
            addDrawable(geode, lines[i].mesh, m_lines[i], lines[i].asides);
        addDrawable(geode, hairlines, m_hairlines);
    }

    void addLine(LineMesh &line, const osg::Vec3d &a, const osg::Vec3d &b, const Color &color) const
    {
        const auto stations = stationsOf(a, b, m_appearance.width);
        switch (m_appearance.style) {
        case LinkStyle::Line:
            line.mesh.line(line.mesh.vertex(a, {}, color), line.mesh.vertex(b, {}, color));
            break;
        case LinkStyle::Tube:
            addPointedTube(line.mesh, stations, m_links.size() <= FewLinks ? 16 : 8, color);
            break;
        case LinkStyle::Billboard:
            addBand(line, stations, color);
            break;
        }
    }

    Ellipsoids ellipsoidsOf(const Picked &links, const osg::Vec3d &origin) const
    {
        Ellipsoids ellipsoids;
        for (const LinkObject *link : links) {
            if (!(link->frequencyMHz > 0))
                continue;
            osg::Vec3d axis = link->b - link->a;
            const linkpath::FresnelEllipsoid size = linkpath::fresnelEllipsoid(
                m_appearance.fresnelZone, link->frequencyMHz, axis.normalize());
            ellipsoids.push_back({(link->a + link->b) / 2 - origin, axis * size.semiMajorM,
                                  size.semiMinorM * m_appearance.fresnelShare});
        }
        return ellipsoids;
    }

    /// Adds the ellipsoids of a tile. If there are many links, distant tiles have coarse
    /// ellipsoids, and fine ones are made when a tile is near the viewer for the first time.
    void addEllipsoids(osg::Group &place, const Ellipsoids &ellipsoids) const
    {
        if (ellipsoids.empty())
            return;
        const osg::ref_ptr<osg::StateSet> state =
            m_ellipsoids[static_cast<std::size_t>(opacityOf(m_appearance.fresnelColor))];
        const auto make = [ellipsoids, state, color = m_zoneColor](Fineness fineness) {
            return drawn(ellipsoids, fineness, color, state);
        };
        if (m_links.size() <= LinksPerTile) {
            place.addChild(make(m_fineness));
            return;
        }
        double widest = 0;
        for (const Ellipsoid &ellipsoid : ellipsoids)
            widest = std::max(widest, ellipsoid.halfWidth);
        const osg::ref_ptr<osg::Node> coarse = make(finenessFromAfar(m_links.size()));
        osg::BoundingSphere bound = coarse->getBound();
        bound.radius() += static_cast<float>(widest);
        const auto near = static_cast<float>(bound.radius() + Afar * widest);
        // Ellipsoids smaller than a pixel are not needed if the lines of sight are visible.
        const double far = m_appearance.color.a() > 0 ? bound.radius() + Unseen * widest
                                                      : std::numeric_limits<float>::max();
        const osg::ref_ptr<DeferredNode> fine =
            new DeferredNode([make, fineness = m_fineness] { return make(fineness); }, bound);
        place.addChild(seenFrom(0, near, fine, bound));
        place.addChild(seenFrom(near, static_cast<float>(far), coarse, bound));
    }

    /// A node with one level of detail, because a node with several is taken for a pylon.
    static osg::ref_ptr<osg::Node> seenFrom(float nearM, float farM, osg::Node *what,
                                            const osg::BoundingSphere &bound)
    {
        osg::ref_ptr<osg::LOD> level = new osg::LOD;
        level->setCenterMode(osg::LOD::USER_DEFINED_CENTER);
        level->setCenter(bound.center());
        level->setRadius(bound.radius());
        level->addChild(what, nearM, farM);
        return level;
    }

    void addDrawable(osg::Geode &geode, const Mesh &mesh, osg::StateSet *state,
                     osg::Vec4Array *asides = nullptr) const
    {
        if (mesh.empty())
            return;
        osg::ref_ptr<osg::Geometry> geometry = new osg::Geometry;
        mesh.fill(*geometry);
        geometry->setStateSet(state);
        if (asides && !asides->empty()) {
            geometry->setTexCoordArray(0, asides);
            osg::BoundingBox turned = geometry->getBoundingBox();
            const auto half = static_cast<float>(m_appearance.width / 2);
            turned.expandBy(turned._min - osg::Vec3(half, half, half));
            turned.expandBy(turned._max + osg::Vec3(half, half, half));
            geometry->setInitialBound(turned);
        }
        geode.addDrawable(geometry);
    }

    const std::vector<LinkObject> &m_links;
    const LinkAppearance &m_appearance;
    Fineness m_fineness;
    Color m_zoneColor;
    osg::ref_ptr<osg::StateSet> m_hairlines;
    std::array<osg::ref_ptr<osg::StateSet>, 2> m_lines; ///< by Opacity
    std::array<osg::ref_ptr<osg::StateSet>, 2> m_ellipsoids;
};

} // namespace

osg::ref_ptr<osg::Group> buildLinks(const std::vector<LinkObject> &links,
                                    const LinkAppearance &appearance)
{
    LinkBuilder::Picked drawn;
    for (const LinkObject &link : links) {
        if (link.a != link.b)
            drawn.push_back(&link);
    }
    osg::ref_ptr<osg::Group> group = new osg::Group;
    LinkBuilder(links, appearance).addTiles(*group, std::move(drawn));
    return group;
}

} // namespace vlt::scene
