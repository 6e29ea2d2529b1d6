#include "picking/ObjectEdges.h"

#include "contract/SceneObjects.h"

#include <osg/Geometry>
#include <osg/NodeVisitor>
#include <osg/Transform>
#include <osg/TriangleIndexFunctor>

#include <array>
#include <cmath>
#include <map>
#include <tuple>

namespace vlt::picking {

namespace {

using Triangle = std::array<osg::Vec3d, 3>;
using Triangles = std::vector<Triangle>;

/// The triangles of a drawable from one number to another.
struct Collector
{
    void operator()(unsigned a, unsigned b, unsigned c)
    {
        if (next >= from && next < to)
            corners.insert(corners.end(), {a, b, c});
        ++next;
    }

    unsigned from = 0;
    unsigned to = 0;
    unsigned next = 0;
    std::vector<unsigned> corners;
};

/// Finds the largest drawable part of an object.
class Finder : public osg::NodeVisitor
{
public:
    explicit Finder(std::size_t object) : osg::NodeVisitor(TRAVERSE_ALL_CHILDREN), m_object(object)
    {}

    void apply(osg::Geometry &geometry) override
    {
        const osg::UserDataContainer *data = geometry.getUserDataContainer();
        const auto *ranges = data ? dynamic_cast<const osg::UIntArray *>(
                                        data->getUserObject(contract::objects::Ranges))
                                  : nullptr;
        const auto *vertices = dynamic_cast<const osg::Vec3Array *>(geometry.getVertexArray());
        for (unsigned i = 1; ranges && vertices && i < ranges->size(); i += 2) {
            if ((*ranges)[i] == m_object)
                take(geometry, *vertices, (*ranges)[i - 1],
                     i + 1 < ranges->size() ? (*ranges)[i + 1] : ~0U);
        }
    }

    const Triangles &triangles() const { return m_triangles; }

private:
    void take(const osg::Geometry &geometry, const osg::Vec3Array &vertices, unsigned from,
              unsigned to)
    {
        osg::TriangleIndexFunctor<Collector> collector;
        collector.from = from;
        collector.to = to;
        geometry.accept(collector);
        const std::vector<unsigned> &corners = collector.corners;
        if (corners.size() <= 3 * m_triangles.size())
            return;
        const osg::Matrixd place = osg::computeLocalToWorld(getNodePath());
        m_triangles.clear();
        for (std::size_t i = 0; i + 2 < corners.size(); i += 3)
            m_triangles.push_back({osg::Vec3d(vertices[corners[i]]) * place,
                                   osg::Vec3d(vertices[corners[i + 1]]) * place,
                                   osg::Vec3d(vertices[corners[i + 2]]) * place});
    }

    std::size_t m_object;
    Triangles m_triangles;
};

/// The two ends of an edge, in millimetres, so that equal positions have equal keys.
using Key = std::array<std::array<std::int64_t, 3>, 2>;

Key keyOf(const osg::Vec3d &one, const osg::Vec3d &other)
{
    constexpr double PerM = 1000;
    const auto rounded = [](const osg::Vec3d &place) {
        return std::array<std::int64_t, 3>{std::llround(place.x() * PerM),
                                           std::llround(place.y() * PerM),
                                           std::llround(place.z() * PerM)};
    };
    Key key{rounded(one), rounded(other)};
    if (key[1] < key[0])
        std::swap(key[0], key[1]);
    return key;
}

struct Edge
{
    osg::Vec3d from;
    osg::Vec3d to;
    osg::Vec3d normal; ///< of the first triangle
    bool isFlat = false;
};

} // namespace

std::vector<osg::Vec3> edgesOf(osg::Node &scene, std::size_t object)
{
    constexpr double FlatCosine = 0.94; // 20 degrees
    Finder finder(object);
    scene.accept(finder);
    std::map<Key, Edge> edges;
    for (const Triangle &triangle : finder.triangles()) {
        osg::Vec3d normal = (triangle[1] - triangle[0]) ^ (triangle[2] - triangle[0]);
        if (normal.normalize() <= 0)
            continue;
        for (std::size_t i = 0; i < triangle.size(); ++i) {
            const osg::Vec3d &from = triangle[i];
            const osg::Vec3d &to = triangle[(i + 1) % triangle.size()];
            const auto [edge, isNew] = edges.try_emplace(keyOf(from, to), Edge{from, to, normal});
            if (!isNew)
                edge->second.isFlat = std::abs(edge->second.normal * normal) > FlatCosine;
        }
    }
    std::vector<osg::Vec3> points;
    for (const auto &[key, edge] : edges) {
        if (!edge.isFlat)
            points.insert(points.end(), {osg::Vec3(edge.from), osg::Vec3(edge.to)});
    }
    return points;
}

} // namespace vlt::picking
