#pragma once

#include "plugins/scene/buildings/CityModel.h"
#include "plugins/scene/buildings/RoofTriangles.h"
#include "plugins/scene/reading/ObjectRanges.h"

#include <osg/Array>
#include <osg/Geode>
#include <osg/Geometry>
#include <osg/StateSet>

#include <vector>

namespace vlt::scene {

/// The faces of buildings that are added to a mesh.
enum class Faces { All, Walls, Roofs };

/// Buildings as triangles that will become one drawable, or two if some colours are translucent.
/// Faces share no vertices, so that each has its own normal and colour. Faces with the alpha 0 are
/// left out.
class CityMesh
{
public:
    using Indices = std::vector<std::uint32_t>; ///< of vertices

    /// @param origin  in the city's frame; vertices are relative to it
    CityMesh(const CityModel &city, const osg::Vec3d &origin) : m_city(city), m_origin(origin) {}

    /// Adds a building in full detail: its walls from `skirtM` below its base to its height, also
    /// around courtyards, and its roof. All faces face outwards for every direction of the rings.
    void addBuilding(std::uint32_t building, double skirtM, Faces faces = Faces::All);

    /// Adds a box with the same height and floor area for each part of a building: for buildings
    /// that are a few pixels large. Its faces share vertices; their normals and colours are correct
    /// with flat shading only.
    void addBoxes(std::uint32_t building);

    /// Adds a point at the centre of the roof, for a building of one or two pixels. A mesh with
    /// points must not have anything else.
    void addDot(std::uint32_t building);

    const std::vector<osg::Vec3> &vertices() const { return m_vertices; }
    const std::vector<osg::Vec3s> &normals() const { return m_normals; } ///< 32767 long
    const std::vector<osg::Vec4ub> &colors() const { return m_colors; }
    const Indices &indices() const { return m_indices; } ///< of opaque triangles or points
    const Indices &translucentIndices() const { return m_translucentIndices; }

    /// Adds the drawables of the triangles or points to a node. They use buffer objects, not
    /// display lists.
    void addTo(osg::Geode &geode, osg::StateSet *solid, osg::StateSet *translucent) const;

private:
    using Positions = std::vector<osg::Vec2d>;

    void begin(std::uint32_t building);
    void addPart(std::span<const Footprints::Ring> rings, std::uint32_t building, double skirtM,
                 Faces faces);
    void addWalls(const Positions &ring, double bottom, double top, const osg::Vec4ub &color);
    void addRoof(double top, const osg::Vec4ub &color);
    void addUnderside(double bottom, const osg::Vec4ub &color); ///< of the last roof
    void addBox(const Positions &ring, double area, std::uint32_t building);
    Indices *indicesFor(const osg::Vec4ub &color); ///< null if nothing is drawn in this colour
    std::uint32_t vertex(const osg::Vec2d &position, double z, const osg::Vec2d &normal,
                         const osg::Vec4ub &color);
    Positions positionsOf(const Footprints::Ring &ring, bool counterClockwise) const;

    const CityModel &m_city;
    osg::Vec3d m_origin;
    RoofTriangles m_roof;
    std::vector<osg::Vec3> m_vertices;
    std::vector<osg::Vec3s> m_normals;
    std::vector<osg::Vec4ub> m_colors;
    Indices m_indices;
    Indices m_translucentIndices;
    ObjectRanges m_ranges; ///< of the triangles of m_indices, if the city is pickable
    ObjectRanges m_translucentRanges;
    GLenum m_mode = GL_TRIANGLES;
};

/// The state set of the faces of a mesh: with lighting, in the colours of their vertices, visible
/// from outside only.
osg::ref_ptr<osg::StateSet> plainFaceState();

/// A copy of a state set for faces that are blended with what is behind them. They are drawn after
/// the others and do not hide each other.
osg::ref_ptr<osg::StateSet> translucentState(const osg::StateSet &faces);

/// The parts of a building: each an outer ring with its holes.
std::vector<std::span<const Footprints::Ring>> partsOf(std::span<const Footprints::Ring> rings);

} // namespace vlt::scene
