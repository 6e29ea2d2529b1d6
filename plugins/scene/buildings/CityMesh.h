#pragma once

#include "plugins/scene/buildings/CityModel.h"
#include "plugins/scene/buildings/RoofTriangles.h"

#include <osg/Array>
#include <osg/Geometry>
#include <osg/StateSet>

#include <vector>

namespace vlt::scene {

/// Buildings as triangles that will become one drawable. Faces share no vertices, so that each has
/// its own normal and colour.
class CityMesh
{
public:
    /// @param origin  in the city's frame; vertices are relative to it
    CityMesh(const CityModel &city, const osg::Vec3d &origin) : m_city(city), m_origin(origin) {}

    /// Adds a building in full detail: its walls from `skirtM` below its base to its height, also
    /// around courtyards, and its roof. All faces face outwards for every direction of the rings.
    void addBuilding(std::uint32_t building, double skirtM);

    /// Adds a box with the same height and floor area for each part of a building: for buildings
    /// that are a few pixels large. Its faces share vertices; their normals and colours are correct
    /// with flat shading only.
    void addBoxes(std::uint32_t building);

    /// Adds a point at the centre of the roof, for a building of one or two pixels. A mesh with
    /// points must not have anything else.
    void addDot(std::uint32_t building);

    bool isEmpty() const { return m_vertices.empty(); }
    const std::vector<osg::Vec3> &vertices() const { return m_vertices; }
    const std::vector<osg::Vec3s> &normals() const { return m_normals; } ///< 32767 long
    const std::vector<osg::Vec4ub> &colors() const { return m_colors; }
    const std::vector<std::uint32_t> &indices() const { return m_indices; } ///< of triangles

    /// The drawable of the triangles, or of the points if there are no triangles. It uses buffer
    /// objects, not display lists.
    osg::ref_ptr<osg::Geometry> geometry() const;

private:
    using Positions = std::vector<osg::Vec2d>;

    void addPart(std::span<const Footprints::Ring> rings, std::uint32_t building, double skirtM);
    void addWalls(const Positions &ring, double bottom, double top, const osg::Vec4ub &color);
    void addRoof(double top, const osg::Vec4ub &color);
    void addBox(const Positions &ring, double area, std::uint32_t building);
    std::uint32_t vertex(const osg::Vec2d &position, double z, const osg::Vec2d &normal,
                         const osg::Vec4ub &color);
    Positions positionsOf(const Footprints::Ring &ring, bool counterClockwise) const;

    const CityModel &m_city;
    osg::Vec3d m_origin;
    RoofTriangles m_roof;
    std::vector<osg::Vec3> m_vertices;
    std::vector<osg::Vec3s> m_normals;
    std::vector<osg::Vec4ub> m_colors;
    std::vector<std::uint32_t> m_indices;
};

/// The state set of the faces of a mesh: with lighting, in the colours of their vertices, visible
/// from outside only.
osg::ref_ptr<osg::StateSet> plainFaceState();

/// The parts of a building: each an outer ring with its holes.
std::vector<std::span<const Footprints::Ring>> partsOf(std::span<const Footprints::Ring> rings);

} // namespace vlt::scene
