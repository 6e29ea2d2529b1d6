#include "plugins/scene/buildings/RoofTriangles.h"

#include <osg/GLU>

#include <cmath>
#include <deque>

namespace vlt::scene {

namespace {

constexpr std::size_t MaxFanCentres = 12; ///< with more vertices only one centre is tried
constexpr double AreaTolerance = 1e-6;    ///< as a share of the whole area
constexpr double WholeTurn = 2 * 3.14159265358979324;

double cross(const osg::Vec2d &a, const osg::Vec2d &b)
{
    return a.x() * b.y() - a.y() * b.x();
}

} // namespace

double doubledArea(std::span<const osg::Vec2d> ring)
{
    double doubled = 0;
    for (std::size_t i = 1; i + 1 < ring.size(); ++i)
        doubled += cross(ring[i] - ring[0], ring[i + 1] - ring[0]);
    return doubled;
}

/// The scene library's tessellator, for polygons that are not fans.
class RoofTriangles::Cutter
{
public:
    Cutter() : m_tess(osg::gluNewTess())
    {
        using Function = osg::_GLUfuncptr;
        osg::gluTessCallback(m_tess, GLU_TESS_VERTEX_DATA, reinterpret_cast<Function>(takeVertex));
        osg::gluTessCallback(m_tess, GLU_TESS_COMBINE_DATA, reinterpret_cast<Function>(combine));
        // With this callback the tessellator returns triangles only, no fans and strips.
        osg::gluTessCallback(m_tess, GLU_TESS_EDGE_FLAG, reinterpret_cast<Function>(ignoreEdge));
        osg::gluTessProperty(m_tess, GLU_TESS_WINDING_RULE, GLU_TESS_WINDING_ODD);
        osg::gluTessNormal(m_tess, 0, 0, 1);
    }
    ~Cutter() { osg::gluDeleteTess(m_tess); }
    Cutter(const Cutter &) = delete;
    Cutter &operator=(const Cutter &) = delete;

    void cut(RoofTriangles &roof)
    {
        m_roof = &roof;
        m_corners.clear();
        m_vertices.clear();
        osg::gluTessBeginPolygon(m_tess, this);
        std::size_t point = 0;
        for (const std::size_t end : roof.m_ringEnds) {
            osg::gluTessBeginContour(m_tess);
            for (; point < end; ++point) {
                const osg::Vec2d &at = roof.m_points[point];
                Vertex &vertex = m_vertices.emplace_back(
                    Vertex{{at.x(), at.y(), 0}, static_cast<std::uint32_t>(point)});
                osg::gluTessVertex(m_tess, vertex.at, &vertex);
            }
            osg::gluTessEndContour(m_tess);
        }
        osg::gluTessEndPolygon(m_tess);
    }

private:
    struct Vertex
    {
        GLdouble at[3];
        std::uint32_t point;
    };

    static void GL_APIENTRY ignoreEdge(GLboolean) {}

    static void GL_APIENTRY takeVertex(void *data, void *self)
    {
        Cutter &cutter = *static_cast<Cutter *>(self);
        cutter.m_corners.push_back(static_cast<const Vertex *>(data)->point);
        if (cutter.m_corners.size() < 3)
            return;
        const auto &points = cutter.m_roof->m_points;
        const Triangle triangle{cutter.m_corners[0], cutter.m_corners[1], cutter.m_corners[2]};
        if (cross(points[triangle[1]] - points[triangle[0]],
                  points[triangle[2]] - points[triangle[0]]) > 0)
            cutter.m_roof->m_triangles.push_back(triangle);
        cutter.m_corners.clear();
    }

    static void GL_APIENTRY combine(GLdouble at[3], void * /*sources*/[4], GLfloat /*weights*/[4],
                                    void **result, void *self)
    {
        Cutter &cutter = *static_cast<Cutter *>(self);
        std::vector<osg::Vec2d> &points = cutter.m_roof->m_points;
        *result = &cutter.m_vertices.emplace_back(
            Vertex{{at[0], at[1], 0}, static_cast<std::uint32_t>(points.size())});
        points.emplace_back(at[0], at[1]);
    }

    osg::GLUtesselator *m_tess;
    RoofTriangles *m_roof = nullptr;
    std::deque<Vertex> m_vertices; ///< a deque, because their addresses must not change
    std::vector<std::uint32_t> m_corners;
};

RoofTriangles::RoofTriangles() = default;

RoofTriangles::~RoofTriangles() = default;

void RoofTriangles::clear()
{
    m_points.clear();
    m_ringEnds.clear();
    m_triangles.clear();
    m_isCrossed = false;
}

void RoofTriangles::addRing(std::span<const osg::Vec2d> ring)
{
    m_points.insert(m_points.end(), ring.begin(), ring.end());
    m_ringEnds.push_back(m_points.size());
}

void RoofTriangles::cut()
{
    if (m_ringEnds.size() == 1 && cutAsFan())
        return;
    m_triangles.clear();
    if (!m_cutter)
        m_cutter = std::make_unique<Cutter>();
    double expected = 0; // area of the outer ring less the holes, if no edges cross
    std::size_t begin = 0;
    for (const std::size_t end : m_ringEnds) {
        const double area = std::abs(doubledArea(std::span(m_points).subspan(begin, end - begin)));
        expected += begin == 0 ? area : -area;
        begin = end;
    }
    m_cutter->cut(*this);
    const double covered = 2 * area();
    m_isCrossed = std::abs(covered - expected) > AreaTolerance * std::abs(covered);
}

double RoofTriangles::area() const
{
    double doubled = 0;
    for (const auto &[a, b, c] : m_triangles)
        doubled += cross(m_points[b] - m_points[a], m_points[c] - m_points[a]);
    return doubled / 2;
}

bool RoofTriangles::cutAsFan()
{
    const std::size_t size = m_points.size();
    const std::size_t centres = size > MaxFanCentres ? 1 : size;
    for (std::size_t centre = 0; centre < centres; ++centre) {
        if (fanFrom(centre))
            return true;
    }
    return false;
}

/// Makes the triangles from one vertex of the ring to all edges. They cover the polygon exactly if
/// all have the same direction and their angles at the vertex are less than 360 degrees together;
/// false otherwise.
bool RoofTriangles::fanFrom(std::size_t centre)
{
    m_triangles.clear();
    const std::size_t size = m_points.size();
    const double side = doubledArea(m_points) < 0 ? -1 : 1;
    const auto at = [&](std::size_t i) { return (centre + i) % size; };
    const osg::Vec2d &middle = m_points[centre];
    double turned = 0;
    for (std::size_t i = 1; i + 1 < size; ++i) {
        const osg::Vec2d a = m_points[at(i)] - middle;
        const osg::Vec2d b = m_points[at(i + 1)] - middle;
        const double area = side * cross(a, b);
        if (area < 0 || (area == 0 && a * b < 0))
            return false;
        turned += std::atan2(area, a * b);
        if (area == 0)
            continue;
        const auto first = static_cast<std::uint32_t>(at(side > 0 ? i : i + 1));
        const auto second = static_cast<std::uint32_t>(at(side > 0 ? i + 1 : i));
        m_triangles.push_back({static_cast<std::uint32_t>(centre), first, second});
    }
    return turned < WholeTurn;
}

} // namespace vlt::scene
