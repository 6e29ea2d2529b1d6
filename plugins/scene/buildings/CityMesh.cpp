#include "plugins/scene/buildings/CityMesh.h"

#include <osg/BoundingBox>
#include <osg/CullFace>
#include <osg/Depth>
#include <osg/LightModel>
#include <osg/Material>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <tuple>

namespace vlt::scene {

namespace {

constexpr double UnitLength = 32767; ///< length of a normal
constexpr double MinAreaM2 = 1e-6;
constexpr unsigned char Opaque = 255; ///< alpha
const osg::Vec2d Upwards;             ///< horizontal components of a vertical normal

osg::Vec4ub bytesOf(const colormaps::Rgba &color)
{
    return {color.red, color.green, color.blue, color.alpha};
}

osg::Vec2d outwards(const osg::Vec2d &along)
{
    const double length = along.length();
    return length > 0 ? osg::Vec2d(along.y(), -along.x()) / length : Upwards;
}

template<typename Elements>
osg::ref_ptr<Elements> elements(GLenum mode, const std::vector<std::uint32_t> &indices)
{
    osg::ref_ptr<Elements> drawn = new Elements(mode);
    drawn->reserve(indices.size());
    for (const std::uint32_t index : indices)
        drawn->push_back(static_cast<typename Elements::value_type>(index));
    return drawn;
}

/// Direction of the longest side of a ring.
osg::Vec2d mainDirection(const std::vector<osg::Vec2d> &ring)
{
    osg::Vec2d longest;
    osg::Vec2d before = ring.back();
    for (const osg::Vec2d &position : ring) {
        if ((position - before).length2() > longest.length2())
            longest = position - before;
        before = position;
    }
    const double length = longest.length();
    return length > 0 ? longest / length : osg::Vec2d(1, 0);
}

} // namespace

std::vector<std::span<const Footprints::Ring>> partsOf(std::span<const Footprints::Ring> rings)
{
    std::vector<std::span<const Footprints::Ring>> parts;
    while (!rings.empty()) {
        std::size_t count = 1;
        while (count < rings.size() && rings[count].isHole)
            ++count;
        parts.push_back(rings.first(count));
        rings = rings.subspan(count);
    }
    return parts;
}

osg::ref_ptr<osg::StateSet> plainFaceState()
{
    osg::ref_ptr<osg::Material> material = new osg::Material;
    material->setColorMode(osg::Material::AMBIENT_AND_DIFFUSE);
    material->setAmbient(osg::Material::FRONT_AND_BACK, osg::Vec4(1, 1, 1, 1));
    material->setDiffuse(osg::Material::FRONT_AND_BACK, osg::Vec4(1, 1, 1, 1));
    osg::ref_ptr<osg::StateSet> state = new osg::StateSet;
    state->setAttributeAndModes(material);
    // More ambient light than the default, so that colours match the legend.
    osg::ref_ptr<osg::LightModel> light = new osg::LightModel;
    light->setAmbientIntensity(osg::Vec4(0.36F, 0.36F, 0.36F, 1));
    state->setAttributeAndModes(light);
    state->setAttributeAndModes(new osg::CullFace(osg::CullFace::BACK));
    state->setMode(GL_LIGHTING, osg::StateAttribute::ON);
    return state;
}

osg::ref_ptr<osg::StateSet> translucentState(const osg::StateSet &faces)
{
    osg::ref_ptr<osg::StateSet> state = new osg::StateSet(faces);
    state->setMode(GL_BLEND, osg::StateAttribute::ON);
    state->setAttributeAndModes(new osg::Depth(osg::Depth::LESS, 0, 1, false));
    state->setRenderingHint(osg::StateSet::TRANSPARENT_BIN);
    return state;
}

void CityMesh::begin(std::uint32_t building)
{
    if (!m_city.isPickable)
        return;
    m_ranges.begin(building, m_indices.size());
    m_translucentRanges.begin(building, m_translucentIndices.size());
}

void CityMesh::addBuilding(std::uint32_t building, double skirtM, Faces faces)
{
    begin(building);
    const Footprints &footprints = m_city.footprints;
    for (const auto &part : partsOf(footprints.ringsOf(footprints.buildings[building])))
        addPart(part, building, skirtM, faces);
}

void CityMesh::addPart(std::span<const Footprints::Ring> rings, std::uint32_t building,
                       double skirtM, Faces faces)
{
    const Footprints::Building &shape = m_city.footprints.buildings[building];
    const double base = m_city.baseM[building] - m_origin.z();
    const double top = base + shape.heightM;
    const double bottom = base + (shape.bottomM > 0 ? shape.bottomM : -skirtM);
    const osg::Vec4ub wallColor = bytesOf(m_city.wallColors[building]);
    std::vector<Positions> outlines;
    m_roof.clear();
    for (const Footprints::Ring &ring : rings) {
        outlines.push_back(positionsOf(ring, !ring.isHole));
        m_roof.addRing(outlines.back());
    }
    m_roof.cut();
    if (faces != Faces::Walls)
        addRoof(top, bytesOf(m_city.roofColors[building]));
    if (faces == Faces::Roofs)
        return;
    for (Positions &outline : outlines) {
        addWalls(outline, bottom, top, wallColor);
        if (!m_roof.isCrossed())
            continue;
        std::reverse(outline.begin(), outline.end()); // both sides may be outside
        addWalls(outline, bottom, top, wallColor);
    }
    if (shape.bottomM > 0)
        addUnderside(bottom, wallColor);
}

void CityMesh::addWalls(const Positions &ring, double bottom, double top, const osg::Vec4ub &color)
{
    Indices *indices = indicesFor(color);
    if (!indices)
        return;
    osg::Vec2d from = ring.back();
    for (const osg::Vec2d &to : ring) {
        const osg::Vec2d normal = outwards(to - from);
        const std::uint32_t a = vertex(from, bottom, normal, color);
        vertex(to, bottom, normal, color);
        vertex(to, top, normal, color);
        vertex(from, top, normal, color);
        indices->insert(indices->end(), {a, a + 1, a + 2, a, a + 2, a + 3});
        from = to;
    }
}

void CityMesh::addRoof(double top, const osg::Vec4ub &color)
{
    Indices *indices = indicesFor(color);
    if (!indices)
        return;
    const auto first = static_cast<std::uint32_t>(m_vertices.size());
    for (const osg::Vec2d &position : m_roof.points())
        vertex(position, top, Upwards, color);
    for (const auto &[a, b, c] : m_roof.triangles())
        indices->insert(indices->end(), {first + a, first + b, first + c});
}

void CityMesh::addUnderside(double bottom, const osg::Vec4ub &color)
{
    Indices *indices = indicesFor(color);
    if (!indices)
        return;
    const auto first = static_cast<std::uint32_t>(m_vertices.size());
    for (const osg::Vec2d &position : m_roof.points())
        m_normals[vertex(position, bottom, Upwards, color)] *= -1;
    for (const auto &[a, b, c] : m_roof.triangles())
        indices->insert(indices->end(), {first + a, first + c, first + b});
}

void CityMesh::addBoxes(std::uint32_t building)
{
    begin(building);
    const Footprints &footprints = m_city.footprints;
    for (const auto &part : partsOf(footprints.ringsOf(footprints.buildings[building]))) {
        double area = 0;
        for (const Footprints::Ring &ring : part) {
            const double size = std::abs(doubledArea(positionsOf(ring, true))) / 2;
            area += ring.isHole ? -size : size;
        }
        if (area < MinAreaM2) { // parts of a ring that crosses itself cancel out
            m_roof.clear();
            for (const Footprints::Ring &ring : part)
                m_roof.addRing(positionsOf(ring, true));
            m_roof.cut();
            area = m_roof.area();
        }
        addBox(positionsOf(part.front(), true), std::max(area, 0.0), building);
    }
}

void CityMesh::addDot(std::uint32_t building)
{
    m_mode = GL_POINTS;
    const osg::Vec4ub color = bytesOf(m_city.roofColors[building]);
    Indices *indices = indicesFor(color);
    if (!indices)
        return;
    const Footprints &footprints = m_city.footprints;
    const Footprints::Building &shape = footprints.buildings[building];
    osg::BoundingBoxd bound;
    for (const osg::Vec2d &position : positionsOf(footprints.rings[shape.ringBegin], true))
        bound.expandBy(position.x(), position.y(), 0);
    const osg::Vec3d middle = bound.center();
    indices->push_back(vertex({middle.x(), middle.y()},
                              m_city.baseM[building] - m_origin.z() + shape.heightM, Upwards,
                              color));
}

void CityMesh::addBox(const Positions &ring, double area, std::uint32_t building)
{
    const osg::Vec2d along = mainDirection(ring);
    const osg::Vec2d across(-along.y(), along.x());
    osg::Vec2d least = {ring.front() * along, ring.front() * across};
    osg::Vec2d most = least;
    for (const osg::Vec2d &position : ring) {
        const osg::Vec2d at(position * along, position * across);
        least.set(std::min(least.x(), at.x()), std::min(least.y(), at.y()));
        most.set(std::max(most.x(), at.x()), std::max(most.y(), at.y()));
    }
    const osg::Vec2d middle = (least + most) / 2;
    const osg::Vec2d size = most - least;
    const double whole = size.x() * size.y();
    const osg::Vec2d half = size / 2 * (whole > 0 ? std::sqrt(std::min(area / whole, 1.0)) : 0);
    const auto corner = [&](double x, double y) {
        return along * (middle.x() + x * half.x()) + across * (middle.y() + y * half.y());
    };
    const std::array<osg::Vec2d, 4> corners = {corner(-1, -1), corner(1, -1), corner(1, 1),
                                               corner(-1, 1)};
    const double base = m_city.baseM[building] - m_origin.z();
    const Footprints::Building &shape = m_city.footprints.buildings[building];
    const double top = base + shape.heightM;
    const osg::Vec4ub wallColor = bytesOf(m_city.wallColors[building]);
    const osg::Vec4ub roofColor = bytesOf(m_city.roofColors[building]);
    const auto b = static_cast<std::uint32_t>(m_vertices.size());
    for (std::size_t i = 0; i < 4; ++i)
        vertex(corners[i], base + shape.bottomM, outwards(corners[(i + 1) % 4] - corners[i]),
               wallColor);
    for (const osg::Vec2d &position : corners)
        vertex(position, top, Upwards, roofColor);
    const std::uint32_t t = b + 4;
    // With flat shading a face has the normal and colour of the last vertex of its triangles.
    Indices *walls = indicesFor(wallColor);
    for (std::uint32_t i = 0; walls && i < 4; ++i) {
        const std::uint32_t next = (i + 1) % 4;
        walls->insert(walls->end(), {b + next, t + next, b + i, t + next, t + i, b + i});
    }
    if (Indices *roof = indicesFor(roofColor))
        roof->insert(roof->end(), {t + 1, t + 2, t, t + 2, t + 3, t});
}

CityMesh::Indices *CityMesh::indicesFor(const osg::Vec4ub &color)
{
    if (color.a() == 0)
        return nullptr;
    return color.a() == Opaque ? &m_indices : &m_translucentIndices;
}

std::uint32_t CityMesh::vertex(const osg::Vec2d &position, double z, const osg::Vec2d &normal,
                               const osg::Vec4ub &color)
{
    const auto component = [](double value) {
        return static_cast<short>(std::lround(value * UnitLength));
    };
    const double up = normal == Upwards ? 1 : 0;
    m_vertices.emplace_back(static_cast<float>(position.x()), static_cast<float>(position.y()),
                            static_cast<float>(z));
    m_normals.emplace_back(component(normal.x()), component(normal.y()), component(up));
    m_colors.push_back(color);
    return static_cast<std::uint32_t>(m_vertices.size() - 1);
}

CityMesh::Positions CityMesh::positionsOf(const Footprints::Ring &ring, bool counterClockwise) const
{
    Positions positions = m_city.outlineOf(ring, m_origin);
    if ((doubledArea(positions) > 0) != counterClockwise)
        std::reverse(positions.begin(), positions.end());
    return positions;
}

void CityMesh::addTo(osg::Geode &geode, osg::StateSet *solid, osg::StateSet *translucent) const
{
    const auto size = static_cast<unsigned>(m_vertices.size());
    osg::ref_ptr<osg::Geometry> all = new osg::Geometry;
    all->setUseDisplayList(false);
    all->setUseVertexBufferObjects(true);
    all->setVertexArray(new osg::Vec3Array(size, m_vertices.data()));
    osg::ref_ptr<osg::Vec3sArray> normals = new osg::Vec3sArray(size, m_normals.data());
    normals->setNormalize(true);
    all->setNormalArray(normals, osg::Array::BIND_PER_VERTEX);
    osg::ref_ptr<osg::Vec4ubArray> colors = new osg::Vec4ubArray(size, m_colors.data());
    colors->setNormalize(true);
    all->setColorArray(colors, osg::Array::BIND_PER_VERTEX);
    for (const auto &[indices, state, ranges] :
         {std::tuple(&m_indices, solid, &m_ranges),
          std::tuple(&m_translucentIndices, translucent, &m_translucentRanges)}) {
        if (indices->empty())
            continue;
        // With shallow copies, both drawables have the same vertices.
        osg::ref_ptr<osg::Geometry> geometry = new osg::Geometry(*all);
        if (size <= std::numeric_limits<GLushort>::max())
            geometry->addPrimitiveSet(elements<osg::DrawElementsUShort>(m_mode, *indices));
        else
            geometry->addPrimitiveSet(elements<osg::DrawElementsUInt>(m_mode, *indices));
        geometry->setStateSet(state);
        if (m_city.isPickable && m_mode == GL_TRIANGLES)
            ranges->addTo(*geometry);
        geode.addDrawable(geometry);
    }
}

} // namespace vlt::scene
