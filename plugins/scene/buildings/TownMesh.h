#pragma once

#include "plugins/scene/buildings/RoofTriangles.h"
#include "plugins/scene/buildings/Town.h"

#include <osg/Array>
#include <osg/Geometry>
#include <osg/StateSet>

#include <vector>

namespace vlt::scene {

/// Buildings as triangles, collected before they become one drawable: no vertex belongs to two
/// faces, so that each face has its own light and colour.
class TownMesh
{
public:
    /// @param origin  in the town's frame; vertices are relative to it
    TownMesh(const Town &town, const osg::Vec3d &origin) : m_town(town), m_origin(origin) {}

    /// A building as it is: walls from `skirtM` under its base up to its height, around courtyards
    /// too, and the roof. All faces look outwards, whatever the direction of the rings.
    void addBuilding(std::uint32_t building, double skirtM);

    /// A box of the same height and floor area in the place of each part of a building: for what is
    /// a few pixels large. Its faces share vertices and get their light and colour only where they
    /// are drawn flat.
    void addBoxes(std::uint32_t building);

    /// A point in the middle of the roof, for what is a pixel or two large; of a mesh that holds
    /// nothing else.
    void addDot(std::uint32_t building);

    bool isEmpty() const { return m_vertices.empty(); }
    const std::vector<osg::Vec3> &vertices() const { return m_vertices; }
    const std::vector<osg::Vec3s> &normals() const { return m_normals; } ///< 32767 long
    const std::vector<osg::Vec4ub> &colors() const { return m_colors; }
    const std::vector<std::uint32_t> &indices() const { return m_indices; } ///< of triangles

    /// The drawable of triangles, or of points where there are none; for buffer objects: no display
    /// lists.
    osg::ref_ptr<osg::Geometry> geometry() const;

private:
    using Places = std::vector<osg::Vec2d>;

    void addPart(std::span<const Footprints::Ring> rings, std::uint32_t building, double skirtM);
    void addWalls(const Places &ring, double bottom, double top, const osg::Vec4ub &color);
    void addRoof(double top, const osg::Vec4ub &color);
    void addBox(const Places &ring, double area, std::uint32_t building);
    std::uint32_t vertex(const osg::Vec2d &place, double z, const osg::Vec2d &normal,
                         const osg::Vec4ub &color);
    Places placesOf(const Footprints::Ring &ring, bool counterClockwise) const;

    const Town &m_town;
    osg::Vec3d m_origin;
    RoofTriangles m_roof;
    std::vector<osg::Vec3> m_vertices;
    std::vector<osg::Vec3s> m_normals;
    std::vector<osg::Vec4ub> m_colors;
    std::vector<std::uint32_t> m_indices;
};

/// How faces of a mesh are drawn: lit, in the colours of their vertices, from outside only.
osg::ref_ptr<osg::StateSet> plainFaceState();

/// The parts of a building: an outer ring with its holes each.
std::vector<std::span<const Footprints::Ring>> partsOf(std::span<const Footprints::Ring> rings);

} // namespace vlt::scene
