#include "plugins/scene/reading/TerrainSurface.h"

#include "plugins/scene/mesh/Mesh.h"

#include <osg/Geode>
#include <osg/PolygonOffset>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <optional>
#include <vector>

namespace vlt::scene {

namespace {

constexpr double Margin = 0.1; ///< on all sides, as a share of the longer side
constexpr double NarrowestM = 500;
constexpr double Relief = 4;   ///< factor of slopes in their shading
constexpr double Shadow = 0.5; ///< brightness without sunlight
constexpr std::size_t NoVertex = static_cast<std::size_t>(-1);

/// Colours from the lowest to the highest ground. They are pale and without green, which is a
/// colour of clearances.
constexpr std::array<std::array<double, 3>, 4> Earth = {
    {{214, 208, 188}, {206, 190, 154}, {188, 164, 128}, {226, 218, 206}}};

constexpr std::array<double, 3> Water = {176, 198, 216};

Color lit(const std::array<double, 3> &rgb, double light)
{
    Color color(0, 0, 0, 255);
    for (unsigned i = 0; i < 3; ++i)
        color[i] = static_cast<unsigned char>(std::lround(light * rgb[i]));
    return color;
}

/// @param light  0 .. 1
Color earthAt(double share, double light)
{
    const double at = std::clamp(share, 0.0, 1.0) * (Earth.size() - 1);
    const std::size_t low = std::min(static_cast<std::size_t>(at), Earth.size() - 2);
    const double part = at - static_cast<double>(low);
    std::array<double, 3> rgb{};
    for (std::size_t i = 0; i < rgb.size(); ++i)
        rgb[i] = Earth[low][i] * (1 - part) + Earth[low + 1][i] * part;
    return lit(rgb, light);
}

/// Heights at equal steps in a frame.
class Grid
{
public:
    Grid(const linkpath::PathProfiler &profiler, const LocalFrame &frame,
         const osg::BoundingBoxd &extent)
    {
        const double width = extent.xMax() - extent.xMin();
        const double depth = extent.yMax() - extent.yMin();
        const double margin = std::max(Margin * std::max(width, depth), NarrowestM);
        m_least.set(extent.xMin() - margin, extent.yMin() - margin);
        const double longer = std::max(width, depth) + 2 * margin;
        m_stepM = longer / (MaxSurfacePoints - 1);
        m_columns = pointsOver(width + 2 * margin);
        m_rows = pointsOver(depth + 2 * margin);
        m_heights.reserve(m_columns * m_rows);
        for (std::size_t row = 0; row < m_rows; ++row) {
            for (std::size_t column = 0; column < m_columns; ++column) {
                const osg::Vec2d position = frame.fromFrame(at(column, row));
                m_heights.push_back(profiler.groundM(position.x(), position.y()));
            }
        }
    }

    Mesh mesh() const
    {
        const auto [least, most] = range();
        Mesh mesh;
        std::vector<std::size_t> vertices(m_heights.size(), NoVertex);
        for (std::size_t row = 0; row < m_rows; ++row) {
            for (std::size_t column = 0; column < m_columns; ++column) {
                const std::size_t i = row * m_columns + column;
                if (!m_heights[i])
                    continue;
                const osg::Vec2d position = at(column, row);
                const double share = (*m_heights[i] - least) / std::max(most - least, 1.0);
                const double bright = light(column, row);
                vertices[i] =
                    mesh.vertex(osg::Vec3d(position.x(), position.y(), *m_heights[i]), osg::Z_AXIS,
                                isWater(column, row) ? lit(Water, bright) : earthAt(share, bright));
            }
        }
        for (std::size_t row = 0; row + 1 < m_rows; ++row) {
            for (std::size_t column = 0; column + 1 < m_columns; ++column)
                addQuad(mesh, vertices, row * m_columns + column);
        }
        return mesh;
    }

private:
    std::size_t pointsOver(double lengthM) const
    {
        return std::min<std::size_t>(static_cast<std::size_t>(std::lround(lengthM / m_stepM)) + 1,
                                     MaxSurfacePoints);
    }

    osg::Vec2d at(std::size_t column, std::size_t row) const
    {
        return m_least +
               osg::Vec2d(static_cast<double>(column), static_cast<double>(row)) * m_stepM;
    }

    std::pair<double, double> range() const
    {
        constexpr double Endless = std::numeric_limits<double>::infinity();
        double least = Endless;
        double most = -Endless;
        for (const std::optional<double> &height : m_heights) {
            least = std::min(least, height.value_or(Endless));
            most = std::max(most, height.value_or(-Endless));
        }
        return {least, most};
    }

    /// Slope (metres per metre) between two neighbours of a point; 0 if a height is unknown.
    double slope(std::size_t before, std::size_t after, std::size_t steps) const
    {
        if (!m_heights[before] || !m_heights[after] || steps == 0)
            return 0;
        return (*m_heights[after] - *m_heights[before]) / (static_cast<double>(steps) * m_stepM);
    }

    /// Brightness of a point with a sun in the north-west, as in the hill shading of maps.
    double light(std::size_t column, std::size_t row) const
    {
        const std::size_t west = column > 0 ? column - 1 : column;
        const std::size_t east = std::min(column + 1, m_columns - 1);
        const std::size_t south = row > 0 ? row - 1 : row;
        const std::size_t north = std::min(row + 1, m_rows - 1);
        const double toEast = slope(row * m_columns + west, row * m_columns + east, east - west);
        const double toNorth =
            slope(south * m_columns + column, north * m_columns + column, north - south);
        osg::Vec3d normal(-Relief * toEast, -Relief * toNorth, 1);
        normal.normalize();
        osg::Vec3d sun(-1, 1, 1.4);
        sun.normalize();
        return Shadow + (1 - Shadow) * std::max(0.0, normal * sun);
    }

    /// Whether a point is on level ground that is not above sea level.
    bool isWater(std::size_t column, std::size_t row) const
    {
        const std::size_t i = row * m_columns + column;
        const auto isLevel = [this, i](std::size_t other) {
            return !m_heights[other] || *m_heights[other] == *m_heights[i];
        };
        return *m_heights[i] <= 0 && (column == 0 || isLevel(i - 1)) &&
               (column + 1 == m_columns || isLevel(i + 1)) &&
               (row == 0 || isLevel(i - m_columns)) &&
               (row + 1 == m_rows || isLevel(i + m_columns));
    }

    void addQuad(Mesh &mesh, const std::vector<std::size_t> &vertices, std::size_t corner) const
    {
        const std::array<std::size_t, 4> corners{vertices[corner], vertices[corner + 1],
                                                 vertices[corner + m_columns + 1],
                                                 vertices[corner + m_columns]};
        if (std::find(corners.begin(), corners.end(), NoVertex) != corners.end())
            return;
        mesh.quad(static_cast<unsigned>(corners[0]), static_cast<unsigned>(corners[1]),
                  static_cast<unsigned>(corners[2]), static_cast<unsigned>(corners[3]));
    }

    osg::Vec2d m_least;
    double m_stepM = 1;
    std::size_t m_columns = 0;
    std::size_t m_rows = 0;
    std::vector<std::optional<double>> m_heights; ///< row by row, from the south
};

} // namespace

osg::ref_ptr<osg::Node> buildTerrainSurface(const linkpath::PathProfiler &profiler,
                                            const LocalFrame &frame,
                                            const osg::BoundingBoxd &extent)
{
    if (!profiler.hasTerrain())
        return nullptr;
    const Mesh mesh = Grid(profiler, frame, extent).mesh();
    if (mesh.empty())
        return nullptr;
    osg::ref_ptr<osg::Geometry> surface = new osg::Geometry;
    mesh.fill(*surface);
    osg::StateSet *state = surface->getOrCreateStateSet();
    // Lines may be drawn half a pixel beside their position. The offset keeps the surface from
    // hiding them on slopes.
    state->setAttributeAndModes(new osg::PolygonOffset(0.5F, 1));
    state->setMode(GL_CULL_FACE, osg::StateAttribute::OFF);
    state->setMode(GL_LIGHTING, osg::StateAttribute::OFF); // the colours include the shading
    osg::ref_ptr<osg::Geode> geode = new osg::Geode;
    geode->setName("terrain");
    geode->addDrawable(surface);
    return geode;
}

} // namespace vlt::scene
