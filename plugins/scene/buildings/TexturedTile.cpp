#include "plugins/scene/buildings/TexturedTile.h"

#include "plugins/scene/buildings/CityMesh.h"
#include "plugins/scene/buildings/ColorText.h"
#include "plugins/scene/buildings/ImageFaces.h"
#include "plugins/scene/mesh/Mesh.h"

#include <osg/Geode>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <optional>

namespace vlt::scene {

namespace {

using Positions = std::vector<osg::Vec2d>;

constexpr double MaxPixelsPerTile = 1 << 21; ///< 8 MiB, for all images together
constexpr double MaxPixelsPerCity = 1 << 27; ///< all tiles together, because tiles are kept
constexpr int MinSide = 64;

/// The colour behind an image; images lie on opaque faces.
osg::Vec4ub opaque(const colormaps::Rgba &color)
{
    return {color.red, color.green, color.blue, 255};
}

class TileBuilder
{
public:
    TileBuilder(const CityModel &city, const contract::BuildingTextures &textures,
                TextureImages &images, const osg::Vec3d &origin, double skirtM)
        : m_city(city)
        , m_textures(textures)
        , m_images(images)
        , m_origin(origin)
        , m_skirtM(skirtM)
        , m_edgeColor(parseColor(textures.edgeColor))
        , m_faces(images.levels().size())
        , m_plain(city, origin)
    {}

    void add(std::uint32_t building)
    {
        ++m_count;
        if (m_city.isPickable) {
            for (ImageFaces &faces : m_faces)
                faces.begin(building);
        }
        if (!hasImage(building)) {
            m_plain.addBuilding(building, m_skirtM);
            return;
        }
        switch (m_textures.mode) {
        case contract::TextureMode::Roofs:
            m_plain.addBuilding(building, m_skirtM, Faces::Walls);
            addRoofs(building);
            break;
        case contract::TextureMode::Walls:
            m_plain.addBuilding(building, m_skirtM, Faces::Roofs);
            addWalls(building);
            break;
        case contract::TextureMode::Storeys:
            addStoreys(building);
            break;
        }
        if (m_textures.mode == contract::TextureMode::Storeys || m_textures.forceEdgeCreation)
            addOutline(building);
    }

    osg::ref_ptr<osg::Node> node()
    {
        osg::ref_ptr<osg::Geode> geode = new osg::Geode;
        m_plain.addTo(*geode, m_images.plainState(), m_images.translucentState());
        const int side = maxSide();
        for (std::size_t i = 0; i < m_faces.size(); ++i) {
            if (!m_faces[i].isEmpty())
                geode->addDrawable(m_faces[i].geometry(*m_images.levels()[i].image, m_textures,
                                                       *m_images.faceState(), side));
        }
        if (!m_edges.empty()) {
            osg::ref_ptr<osg::Geometry> edges = new osg::Geometry;
            m_edges.fill(*edges);
            edges->setStateSet(m_images.edgeState());
            edges->setName("edges");
            geode->addDrawable(edges);
        }
        return geode->getNumDrawables() > 0 ? geode : nullptr;
    }

private:
    bool hasImage(std::uint32_t building) const
    {
        const Footprints::Building &one = m_city.footprints.buildings[building];
        const bool isComplex = m_city.footprints.isComplex(building);
        if (m_images.isEmpty() || (isComplex && !m_textures.processComplexBuildings))
            return false;
        return m_textures.mode != contract::TextureMode::Storeys ||
               !levelsWithin(one.bottomM, one.heightM).empty();
    }

    std::vector<std::size_t> levelsWithin(double bottomM, double heightM) const
    {
        std::vector<std::size_t> within;
        for (std::size_t i = 0; i < m_images.levels().size(); ++i) {
            const double at = m_images.levels()[i].heightM;
            if (at >= bottomM && at <= heightM)
                within.push_back(i);
        }
        return within;
    }

    /// Maximum side in pixels of the part of each image: the tile's share of the memory is its
    /// share of the buildings.
    int maxSide() const
    {
        const double share =
            static_cast<double>(m_count) / static_cast<double>(m_city.footprints.buildings.size());
        const auto images = std::count_if(m_faces.begin(), m_faces.end(),
                                          [](const ImageFaces &faces) { return !faces.isEmpty(); });
        const double pixels = std::min(MaxPixelsPerTile, share * MaxPixelsPerCity) /
                              static_cast<double>(std::max<std::ptrdiff_t>(images, 1));
        return std::clamp(static_cast<int>(std::sqrt(pixels)), MinSide, MaxCropPixels);
    }

    /// Height of a building's base above the origin.
    double baseM(std::uint32_t building) const { return m_city.baseM[building] - m_origin.z(); }
    double bottomM(std::uint32_t building) const
    {
        return m_city.footprints.buildings[building].bottomM;
    }
    double heightM(std::uint32_t building) const
    {
        return m_city.footprints.buildings[building].heightM;
    }

    /// Adds horizontal faces with images, each at its height above the base.
    void addFloors(std::uint32_t building,
                   const std::vector<std::pair<std::size_t, double>> &levels)
    {
        const Footprints &footprints = m_city.footprints;
        const osg::Vec4ub color = opaque(m_city.roofColors[building]);
        for (const auto &part : partsOf(footprints.ringsOf(footprints.buildings[building]))) {
            Positions looked; // positions in the image, parallel to the points
            m_roof.clear();
            for (const Footprints::Ring &ring : part) {
                const auto positions = footprints.positionsOf(ring);
                std::transform(positions.begin(), positions.end(), std::back_inserter(looked),
                               toVector);
                m_roof.addRing(m_city.outlineOf(ring, m_origin));
            }
            m_roof.cut();
            lookUpCrossings(part.front(), looked);
            for (const auto &[level, z] : levels)
                m_faces[level].addFloor(m_roof, looked, baseM(building) + z, color);
        }
    }

    /// Adds the positions in the image for the points that m_roof.cut() added.
    void lookUpCrossings(const Footprints::Ring &ring, Positions &looked) const
    {
        const osg::Vec2d first = m_roof.points().front();
        const osg::Vec2d firstLooked = toVector(m_city.footprints.positions[ring.begin]);
        for (std::size_t i = looked.size(); i < m_roof.points().size(); ++i)
            looked.push_back(firstLooked + m_images.inSystem(m_roof.points()[i] - first));
    }

    void addRoofs(std::uint32_t building)
    {
        addFloors(building, {{m_images.nearest(heightM(building)), heightM(building)}});
    }

    void addStoreys(std::uint32_t building)
    {
        std::vector<std::pair<std::size_t, double>> floors;
        for (const std::size_t level : levelsWithin(bottomM(building), heightM(building))) {
            const double z = m_images.levels()[level].heightM;
            floors.emplace_back(level, z);
            addRings(building, baseM(building) + z);
        }
        addFloors(building, floors);
    }

    void addWalls(std::uint32_t building)
    {
        const Footprints &footprints = m_city.footprints;
        for (const Footprints::Ring &ring : footprints.ringsOf(footprints.buildings[building])) {
            const Positions outline = m_city.outlineOf(ring, m_origin);
            const auto positions = footprints.positionsOf(ring);
            // The outside is to the right of a counter-clockwise ring, and to the left of a hole.
            const double side = (doubledArea(outline) > 0) != ring.isHole ? 1 : -1;
            for (std::size_t i = 0; i < outline.size(); ++i) {
                const std::size_t next = (i + 1) % outline.size();
                osg::Vec2d normal(outline[next].y() - outline[i].y(),
                                  outline[i].x() - outline[next].x());
                if (normal.normalize() <= 0)
                    continue;
                normal *= side;
                const osg::Vec2d aside = m_images.inSystem(normal * m_textures.bufferM.value_or(0));
                addBands(building,
                         {outline[i], outline[next], normal, toVector(positions[i]) + aside,
                          toVector(positions[next]) + aside});
            }
        }
    }

    /// Adds a wall. The image of a level covers it from the mean height of this level and the one
    /// below to the mean height of this level and the one above.
    void addBands(std::uint32_t building, const Wall &wall)
    {
        const auto &levels = m_images.levels();
        const osg::Vec4ub color = opaque(m_city.wallColors[building]);
        const double height = heightM(building);
        double bottom = bottomM(building) > 0 ? bottomM(building) : -m_skirtM;
        for (std::size_t i = 0; i < levels.size() && bottom < height; ++i) {
            const bool isLast = i + 1 == levels.size();
            const double border = isLast ? height : (levels[i].heightM + levels[i + 1].heightM) / 2;
            const double top = std::min(border, height);
            if (top <= bottom)
                continue;
            m_faces[i].addWall(wall, baseM(building) + bottom, baseM(building) + top, color);
            bottom = top;
        }
    }

    void addOutline(std::uint32_t building)
    {
        const double base = baseM(building) + bottomM(building);
        const double top = baseM(building) + heightM(building);
        addRings(building, base);
        addRings(building, top);
        if (!m_edgeColor)
            return;
        const Footprints &footprints = m_city.footprints;
        for (const Footprints::Ring &ring : footprints.ringsOf(footprints.buildings[building])) {
            for (const osg::Vec2d &position : m_city.outlineOf(ring, m_origin))
                m_edges.line(edge(position, base), edge(position, top));
        }
    }

    void addRings(std::uint32_t building, double z)
    {
        if (!m_edgeColor)
            return;
        const Footprints &footprints = m_city.footprints;
        for (const Footprints::Ring &ring : footprints.ringsOf(footprints.buildings[building])) {
            const Positions outline = m_city.outlineOf(ring, m_origin);
            unsigned before = edge(outline.front(), z);
            const unsigned first = before;
            for (std::size_t i = 1; i < outline.size(); ++i) {
                const unsigned next = edge(outline[i], z);
                m_edges.line(before, next);
                before = next;
            }
            m_edges.line(before, first);
        }
    }

    unsigned edge(const osg::Vec2d &position, double z)
    {
        return m_edges.vertex(osg::Vec3d(position.x(), position.y(), z), osg::Z_AXIS,
                              opaque(*m_edgeColor));
    }

    const CityModel &m_city;
    const contract::BuildingTextures &m_textures;
    TextureImages &m_images;
    osg::Vec3d m_origin;
    double m_skirtM;
    std::optional<colormaps::Rgba> m_edgeColor;
    std::size_t m_count = 0;         ///< buildings added
    std::vector<ImageFaces> m_faces; ///< parallel to the images
    CityMesh m_plain;                ///< faces without an image
    RoofTriangles m_roof;
    Mesh m_edges{Mesh::Kind::Lines};
};

} // namespace

osg::ref_ptr<osg::Node> buildTexturedTile(const CityModel &city,
                                          const contract::BuildingTextures &textures,
                                          TextureImages &images,
                                          std::span<const std::uint32_t> buildings,
                                          const osg::Vec3d &origin, double skirtM)
{
    TileBuilder builder(city, textures, images, origin, skirtM);
    for (const std::uint32_t building : buildings)
        builder.add(building);
    return builder.node();
}

} // namespace vlt::scene
