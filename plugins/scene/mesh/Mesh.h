#pragma once

#include <osg/Geometry>
#include <osg/Matrixd>
#include <osg/Vec3>
#include <osg/Vec4ub>

#include <cstddef>
#include <vector>

namespace vlt::scene {

/// Red, green, blue, opacity; 0 .. 255 each.
using Color = osg::Vec4ub;

/// Triangles or line segments that will become one drawable, with a normal and a colour per vertex.
/// Metres; front faces are counter-clockwise.
class Mesh
{
public:
    enum class Kind { Solid, Lines };

    explicit Mesh(Kind kind = Kind::Solid) : m_kind(kind) {}

    /// Adds a vertex and returns its index.
    unsigned vertex(const osg::Vec3 &position, const osg::Vec3 &normal, const Color &color);

    void triangle(unsigned a, unsigned b, unsigned c);
    void quad(unsigned a, unsigned b, unsigned c, unsigned d);
    void line(unsigned a, unsigned b);

    /// Adds another mesh of the same kind, transformed by a matrix that does not scale.
    void append(const Mesh &other, const osg::Matrixd &placing);

    bool empty() const { return m_indices.empty(); }
    std::size_t vertexCount() const { return m_positions.size(); }
    const std::vector<osg::Vec3> &positions() const { return m_positions; }
    const std::vector<osg::Vec3> &normals() const { return m_normals; }
    const std::vector<unsigned> &indices() const { return m_indices; }

    /// Puts the vertices into a geometry that uses buffer objects, not display lists. Lines have no
    /// normals in it.
    void fill(osg::Geometry &geometry) const;

private:
    Kind m_kind;
    std::vector<osg::Vec3> m_positions;
    std::vector<osg::Vec3> m_normals;
    std::vector<Color> m_colors;
    std::vector<unsigned> m_indices;
};

/// The parts of an object: one mesh per material.
struct Meshes
{
    Mesh metal; ///< steel, slightly shiny
    Mesh matt;  ///< concrete, wood, plastics
};

} // namespace vlt::scene
