#include "plugins/scene/layers/LinkRecords.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace vlt::scene {

namespace {

constexpr double DegreesPerRadian = 57.29577951308232;

/// A dish that faces in a direction.
Transmitter dishAlong(const osg::Vec3d &way, double heightM, const Color &color)
{
    Transmitter dish;
    dish.kind = AntennaKind::Dish;
    dish.heightM = heightM;
    dish.azimuthDeg = std::atan2(way.x(), way.y()) * DegreesPerRadian;
    dish.tiltDeg = -std::atan2(way.z(), std::hypot(way.x(), way.y())) * DegreesPerRadian;
    dish.color = color;
    return dish;
}

class Placer
{
public:
    Placer(const LinkRows &links, const LinkLayerStyle &style,
           const linkpath::PathProfiler &profiler)
        : m_links(links)
        , m_style(style)
        , m_profiler(profiler)
    {}

    LinkRecords place()
    {
        for (const LinkRow &row : m_links.rows)
            m_pylonsOf.push_back({pylonFor(row.ends[0]), pylonFor(row.ends[1])});
        for (std::uint32_t pylon = 0; pylon < m_ends.size(); ++pylon)
            setUp(pylon);
        for (std::size_t i = 0; i < m_pylonsOf.size(); ++i)
            add(m_links.rows[i], m_pylonsOf[i]);
        return std::move(m_records);
    }

private:
    using Cell = std::pair<std::int64_t, std::int64_t>;
    using Pylons = std::array<std::uint32_t, 2>;

    /// The ends at a pylon.
    struct Ends
    {
        std::string site;
        osg::Vec2d first;
        osg::Vec2d sum;
        std::size_t count = 0;
    };

    std::uint32_t pylonFor(const LinkRowEnd &end)
    {
        const auto pylon = knownPylon(end.place);
        Ends &ends = m_ends[pylon];
        if (ends.site.empty())
            ends.site = end.site;
        ends.sum += end.place;
        ++ends.count;
        return pylon;
    }

    std::uint32_t knownPylon(const osg::Vec2d &place)
    {
        const Cell cell(std::llround(place.x() / SamePylonM), std::llround(place.y() / SamePylonM));
        for (std::int64_t x = cell.first - 1; x <= cell.first + 1; ++x) {
            for (std::int64_t y = cell.second - 1; y <= cell.second + 1; ++y) {
                const auto [first, last] = m_cells.equal_range({x, y});
                for (auto known = first; known != last; ++known) {
                    if ((m_ends[known->second].first - place).length() <= SamePylonM)
                        return known->second;
                }
            }
        }
        const auto pylon = static_cast<std::uint32_t>(m_ends.size());
        m_cells.emplace(cell, pylon);
        m_ends.emplace_back().first = place;
        return pylon;
    }

    void setUp(std::uint32_t pylon)
    {
        const Ends &ends = m_ends[pylon];
        const osg::Vec2d middle = ends.sum / static_cast<double>(ends.count);
        const osg::Vec2d place = m_links.frame.local->fromFrame(middle);
        const std::optional<double> ground = m_profiler.groundM(place.x(), place.y());
        m_records.groundless += ground ? 0 : 1;
        const osg::Vec3d foot(middle.x(), middle.y(), ground.value_or(0.0));
        m_records.pylons.sites.push_back({ends.site, foot, pylon});
        m_records.pylons.designs.push_back(m_style.pylons.pylon);
        m_records.pylons.designs.back().heightM = 0; // until the antennas are known
    }

    void add(const LinkRow &row, const Pylons &pylons)
    {
        std::array<double, 2> heightsM{};
        std::array<osg::Vec3d, 2> centres;
        for (std::size_t i = 0; i < 2; ++i) {
            heightsM[i] = row.ends[i].end.heightM.value_or(DefaultLinkAntennaM);
            centres[i].set(row.ends[i].place.x(), row.ends[i].place.y(),
                           m_records.pylons.sites[pylons[i]].foot.z() + heightsM[i]);
            double &mastM = m_records.pylons.designs[pylons[i]].heightM;
            mastM = std::max(mastM, heightsM[i] + AboveAntennasM);
        }
        if (pylons[0] != pylons[1]) {
            hang(pylons[0], centres[1] - centres[0], heightsM[0]);
            hang(pylons[1], centres[0] - centres[1], heightsM[1]);
        }
        LinkObject link{centres[0], centres[1], row.frequencyMHz, {}};
        if (m_style.appearance.colorByClearance)
            check(row, link);
        m_records.links.push_back(link);
    }

    void hang(std::uint32_t pylon, const osg::Vec3d &way, double heightM)
    {
        PylonDesign &design = m_records.pylons.designs[pylon];
        const std::size_t count = design.transmitters.size();
        if (count == MaxTransmitters)
            return;
        const std::vector<Color> &colors = m_style.pylons.colors;
        design.transmitters.push_back(dishAlong(way, heightM, colors[count % colors.size()]));
    }

    void check(const LinkRow &row, LinkObject &link)
    {
        const linkpath::ClearanceStatus status =
            m_profiler.check(row.ends[0].end, row.ends[1].end, row.frequencyMHz, m_style.rule())
                .status;
        ++m_records.statuses[status];
        if (status != linkpath::ClearanceStatus::Unknown)
            link.color = lineColor(status, m_style.appearance);
    }

    const LinkRows &m_links;
    const LinkLayerStyle &m_style;
    const linkpath::PathProfiler &m_profiler;
    LinkRecords m_records;
    std::vector<Ends> m_ends;       ///< by pylon
    std::vector<Pylons> m_pylonsOf; ///< by link
    std::multimap<Cell, std::uint32_t> m_cells;
};

} // namespace

Color lineColor(linkpath::ClearanceStatus status, const LinkAppearance &appearance)
{
    if (status == linkpath::ClearanceStatus::Unknown)
        return appearance.color;
    const std::array<std::uint8_t, 3> rgb = linkpath::clearanceColor(status);
    return {rgb[0], rgb[1], rgb[2], appearance.color.a()};
}

LinkRecords placeLinks(const LinkRows &links, const LinkLayerStyle &style,
                       const linkpath::PathProfiler &profiler)
{
    return Placer(links, style, profiler).place();
}

} // namespace vlt::scene
