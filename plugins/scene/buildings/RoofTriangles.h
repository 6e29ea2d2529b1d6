#pragma once

#include <osg/Vec2d>

#include <array>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

namespace vlt::scene {

/// Twice the area within a ring; positive for a counter-clockwise one.
double doubledArea(std::span<const osg::Vec2d> ring);

/// Divides polygons with holes into triangles. The triangles cover, exactly once, the area that an
/// odd number of rings encloses. Rings may have either direction, repeated vertices and edges that
/// touch or cross.
class RoofTriangles
{
public:
    RoofTriangles();
    ~RoofTriangles();
    RoofTriangles(const RoofTriangles &) = delete;
    RoofTriangles &operator=(const RoofTriangles &) = delete;

    /// Starts a polygon: removes the points and triangles of the previous one.
    void clear();

    /// Adds a ring; the first is the outer one. The precision is best near the origin.
    void addRing(std::span<const osg::Vec2d> ring);

    /// Makes the triangles.
    void cut();

    /// The vertices of the rings in their order, then those where edges cross.
    const std::vector<osg::Vec2d> &points() const { return m_points; }

    using Triangle = std::array<std::uint32_t, 3>;

    /// Indices into points(), counter-clockwise; no triangle has an area of 0.
    const std::vector<Triangle> &triangles() const { return m_triangles; }

    /// Area of all triangles.
    double area() const;

    /// Whether edges of the polygon cross.
    bool isCrossed() const { return m_isCrossed; }

private:
    class Cutter;

    bool cutAsFan();
    bool fanFrom(std::size_t centre);

    std::unique_ptr<Cutter> m_cutter;
    std::vector<osg::Vec2d> m_points;
    std::vector<std::size_t> m_ringEnds;
    std::vector<Triangle> m_triangles;
    bool m_isCrossed = false;
};

} // namespace vlt::scene
