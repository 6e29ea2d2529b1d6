#include "plugins/scene/link/LinkFactory.h"

#include "linkpath/Fresnel.h"
#include "plugins/scene/link/LinkStates.h"
#include "plugins/scene/link/LinkZones.h"
#include "plugins/scene/mesh/Palette.h"
#include "plugins/scene/mesh/Solids.h"

#include <osg/Geode>
#include <osg/LOD>
#include <osg/MatrixTransform>

#include <algorithm>
#include <array>
#include <cmath>

namespace vlt::scene {

namespace {

constexpr std::size_t FewLinks = 2000; ///< up to this number tubes are rounder
constexpr double PointLength = 3;      ///< of a pointed end, in widths of the line
constexpr double PointM = 0.1;         ///< width at the end point

Opacity opacityOf(const Color &color)
{
    return color.a() < 255 ? Opacity::Translucent : Opacity::Opaque;
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

void addHairline(Mesh &lines, const osg::Vec3d &a, const osg::Vec3d &b, const Color &color)
{
    lines.line(lines.vertex(a, {}, color), lines.vertex(b, {}, color));
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
        , m_zones(links.size(), appearance)
        , m_hairlines(makeHairlineState())
        , m_casings(makeCasingState(appearance))
    {
        for (const Opacity opacity : {Opacity::Opaque, Opacity::Translucent})
            m_lines[static_cast<std::size_t>(opacity)] = makeLineState(appearance, opacity);
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
        osg::ref_ptr<osg::Geode> casings = new osg::Geode;
        addLines(*geode, *casings, links, origin);
        // Vertices in single precision need small coordinates: optimisers must keep the transform.
        osg::ref_ptr<osg::MatrixTransform> place =
            new osg::MatrixTransform(osg::Matrixd::translate(origin));
        place->setDataVariance(osg::Object::DYNAMIC);
        if (geode->getNumDrawables() > 0)
            place->addChild(geode);
        if (casings->getNumDrawables() > 0)
            place->addChild(whereLinksAreApart(casings, links, ends));
        addZones(*place, links, origin);
        return place;
    }

    /// Casings of links that are close together on the screen would hide the ground between them.
    static osg::ref_ptr<osg::Node> whereLinksAreApart(osg::Geode *casings, const Picked &links,
                                                      const osg::BoundingBoxd &ends)
    {
        constexpr std::size_t Few = 16;
        constexpr double Room =
            100; ///< distance / that between links: they are about 15 pixels apart
        if (links.size() <= Few)
            return casings;
        const osg::Vec3d size = ends._max - ends._min;
        const double apartM =
            (size.x() + size.y()) / 2 / std::sqrt(static_cast<double>(links.size()));
        osg::ref_ptr<osg::LOD> seen = new osg::LOD;
        seen->addChild(casings, 0,
                       static_cast<float>(Room * apartM + casings->getBound().radius()));
        return seen;
    }

    void addLines(osg::Geode &geode, osg::Geode &cased, const Picked &links,
                  const osg::Vec3d &origin) const
    {
        std::array<LineMesh, 2> lines = {LineMesh(m_appearance.style),
                                         LineMesh(m_appearance.style)};
        Mesh hairlines(Mesh::Kind::Lines);
        Mesh casings(Mesh::Kind::Lines);
        for (const LinkObject *link : links) {
            const Color color = link->color.value_or(m_appearance.color);
            if (color.a() == 0)
                continue;
            const osg::Vec3d a = link->a - origin;
            const osg::Vec3d b = link->b - origin;
            const Opacity opacity = opacityOf(color);
            addLine(lines[static_cast<std::size_t>(opacity)], a, b, color);
            if (opacity == Opacity::Translucent)
                continue;
            if (m_appearance.style != LinkStyle::Line)
                addHairline(hairlines, a, b, color);
            addHairline(casings, a, b, palette::edgeOf(color));
        }
        for (std::size_t i = 0; i < lines.size(); ++i)
            addDrawable(geode, lines[i].mesh, m_lines[i], lines[i].asides);
        addDrawable(geode, hairlines, m_hairlines);
        addDrawable(cased, casings, m_casings);
    }

    void addLine(LineMesh &line, const osg::Vec3d &a, const osg::Vec3d &b, const Color &color) const
    {
        const auto stations = stationsOf(a, b, m_appearance.width);
        switch (m_appearance.style) {
        case LinkStyle::Line:
            addHairline(line.mesh, a, b, color);
            break;
        case LinkStyle::Tube:
            addPointedTube(line.mesh, stations, m_links.size() <= FewLinks ? 16 : 8, color);
            break;
        case LinkStyle::Billboard:
            addBand(line, stations, color);
            break;
        }
    }

    void addZones(osg::Group &place, const Picked &links, const osg::Vec3d &origin) const
    {
        std::vector<Ellipsoid> ellipsoids;
        for (const LinkObject *link : links) {
            std::optional<Ellipsoid> zone = zoneOf(*link, m_appearance);
            if (!zone)
                continue;
            zone->centre -= origin;
            ellipsoids.push_back(*zone);
        }
        if (!ellipsoids.empty())
            place.addChild(m_zones.build(ellipsoids));
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
    LinkZones m_zones;
    osg::ref_ptr<osg::StateSet> m_hairlines;
    osg::ref_ptr<osg::StateSet> m_casings;
    std::array<osg::ref_ptr<osg::StateSet>, 2> m_lines; ///< by Opacity
};

} // namespace

std::optional<Ellipsoid> zoneOf(const LinkObject &link, const LinkAppearance &appearance)
{
    const bool isDrawn = appearance.fresnelZone > 0 && appearance.fresnelColor.a() > 0;
    if (!isDrawn || !(link.frequencyMHz > 0) || link.a == link.b)
        return std::nullopt;
    osg::Vec3d axis = link.b - link.a;
    const linkpath::FresnelEllipsoid size =
        linkpath::fresnelEllipsoid(appearance.fresnelZone, link.frequencyMHz, axis.normalize());
    return Ellipsoid{(link.a + link.b) / 2, axis * size.semiMajorM,
                     size.semiMinorM * appearance.fresnelShare};
}

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
