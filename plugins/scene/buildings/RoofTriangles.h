#pragma once

#include <osg/Vec2d>

#include <array>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

namespace vlt::scene {

/// Twice the area within a ring, positive where it runs counter-clockwise.
double doubledArea(std::span<const osg::Vec2d> ring);

/// Cuts polygons with holes into triangles. Whatever the rings are like (either direction, points
/// twice, lines that touch or cross), what an odd number of them goes around is covered once.
class RoofTriangles
{
public:
    RoofTriangles();
    ~RoofTriangles();
    RoofTriangles(const RoofTriangles &) = delete;
    RoofTriangles &operator=(const RoofTriangles &) = delete;

    /// Starts a polygon: forgets the points and triangles of the one before.
    void clear();

    /// Adds a ring; the first is the outer one. Points near the origin keep their precision.
    void addRing(std::span<const osg::Vec2d> ring);

    /// Makes the triangles.
    void cut();

    /// Those of the rings in their order, then some that lie where lines cross.
    const std::vector<osg::Vec2d> &points() const { return m_points; }

    using Triangle = std::array<std::uint32_t, 3>;

    /// Indices into points(), counter-clockwise, none without an area.
    const std::vector<Triangle> &triangles() const { return m_triangles; }

    /// Of all triangles.
    double area() const;

    /// Whether a line of the polygon cuts another.
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
