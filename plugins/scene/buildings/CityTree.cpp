#include "plugins/scene/buildings/CityTree.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace vlt::scene {

namespace {

constexpr unsigned LevelsInTile = 6; ///< how often a tile can be divided into quarters
constexpr double MaxCells = 1 << 30;

/// Inserts a zero bit between the bits of a number.
std::uint64_t spread(std::uint64_t bits)
{
    bits = (bits | bits << 16) & 0x0000FFFF0000FFFF;
    bits = (bits | bits << 8) & 0x00FF00FF00FF00FF;
    bits = (bits | bits << 4) & 0x0F0F0F0F0F0F0F0F;
    bits = (bits | bits << 2) & 0x3333333333333333;
    return (bits | bits << 1) & 0x5555555555555555;
}

osg::BoundingBoxd boundOf(const CityModel &city, std::uint32_t building)
{
    const Footprints::Building &shape = city.footprints.buildings[building];
    const double base = city.baseM[building];
    osg::BoundingBoxd bound;
    for (const Footprints::Ring &ring : city.footprints.ringsOf(shape)) {
        for (std::uint32_t i = ring.begin; i < ring.end; ++i)
            bound.expandBy(city.positions[i].x, city.positions[i].y, base);
    }
    bound.zMax() += shape.heightM;
    return bound;
}

osg::Vec2d middleOf(const CityModel &city, std::uint32_t building)
{
    const Footprints &footprints = city.footprints;
    const Footprints::Ring &ring = footprints.rings[footprints.buildings[building].ringBegin];
    osg::BoundingBoxd bound;
    for (std::uint32_t i = ring.begin; i < ring.end; ++i)
        bound.expandBy(city.positions[i].x, city.positions[i].y, 0);
    return {bound.center().x(), bound.center().y()};
}

/// Sorts buildings along a curve that keeps neighbours together (Z-order): the first two bits of a
/// code are the quarter of a square, the next two the quarter of this quarter, and so on.
class TreeGrower
{
public:
    TreeGrower(const CityModel &city, double tileSizeM, std::vector<std::uint32_t> &order)
        : m_city(city)
        , m_order(order)
        , m_codes(order.size())
    {
        std::vector<osg::Vec2d> middles(order.size());
        osg::Vec2d least;
        osg::Vec2d most;
        for (const std::uint32_t building : order) {
            middles[building] = middleOf(city, building);
            const osg::Vec2d &at = middles[building];
            least.set(std::min(least.x(), at.x()), std::min(least.y(), at.y()));
            most.set(std::max(most.x(), at.x()), std::max(most.y(), at.y()));
        }
        const double extent = std::max({most.x() - least.x(), most.y() - least.y(), 1.0});
        tileSizeM = std::clamp(tileSizeM, extent / MaxCells, extent);
        const double cell = std::max(tileSizeM / (1 << LevelsInTile), extent / MaxCells);
        // A corner of tiles is at the centre of the city, independently of its extent.
        const osg::Vec2d corner(std::floor(least.x() / tileSizeM) * tileSizeM,
                                std::floor(least.y() / tileSizeM) * tileSizeM);
        for (const std::uint32_t building : order) {
            const osg::Vec2d at = (middles[building] - corner) / cell;
            m_codes[building] = spread(static_cast<std::uint64_t>(at.x())) |
                                spread(static_cast<std::uint64_t>(at.y())) << 1;
        }
        std::sort(order.begin(), order.end(), [this](std::uint32_t a, std::uint32_t b) {
            return m_codes[a] != m_codes[b] ? m_codes[a] < m_codes[b] : a < b;
        });
        while (countTiles() > MaxTiles)
            m_tileShift += 2;
    }

    std::unique_ptr<CityTree> grow() const { return grow(m_order, RootShift); }

private:
    static constexpr unsigned RootShift = 62;

    std::size_t countTiles() const
    {
        std::size_t count = 0;
        std::uint64_t before = 0;
        for (const std::uint32_t building : m_order) {
            const std::uint64_t tile = m_codes[building] >> m_tileShift;
            count += count == 0 || tile != before ? 1 : 0;
            before = tile;
        }
        return count;
    }

    /// @param shift  the codes of the branch's buildings differ only in this number of lowest bits
    std::unique_ptr<CityTree> grow(std::span<const std::uint32_t> buildings, unsigned shift) const
    {
        const auto codeOf = [this](std::uint32_t building) { return m_codes[building]; };
        // A level with all buildings in one quarter is skipped.
        while (shift > 0 &&
               codeOf(buildings.front()) >> (shift - 2) == codeOf(buildings.back()) >> (shift - 2))
            shift -= 2;
        auto tree = std::make_unique<CityTree>();
        tree->buildings = buildings;
        if (shift == 0 || (shift <= m_tileShift && buildings.size() <= MaxBuildingsPerTile)) {
            for (const std::uint32_t building : buildings)
                tree->bound.expandBy(boundOf(m_city, building));
            return tree;
        }
        while (!buildings.empty()) {
            const std::uint64_t quarter = codeOf(buildings.front()) >> (shift - 2);
            const auto end =
                std::find_if(buildings.begin(), buildings.end(), [&](std::uint32_t building) {
                    return codeOf(building) >> (shift - 2) != quarter;
                });
            const auto count = static_cast<std::size_t>(end - buildings.begin());
            tree->branches.push_back(grow(buildings.first(count), shift - 2));
            tree->bound.expandBy(tree->branches.back()->bound);
            buildings = buildings.subspan(count);
        }
        return tree;
    }

    const CityModel &m_city;
    const std::vector<std::uint32_t> &m_order;
    std::vector<std::uint64_t> m_codes; ///< by building
    unsigned m_tileShift = 2 * LevelsInTile;
};

} // namespace

CityTiles growCityTree(const CityModel &city, double tileSizeM)
{
    CityTiles tiles;
    tiles.order.resize(city.footprints.buildings.size());
    std::iota(tiles.order.begin(), tiles.order.end(), 0);
    if (!tiles.order.empty())
        tiles.root = TreeGrower(city, tileSizeM, tiles.order).grow();
    return tiles;
}

} // namespace vlt::scene
