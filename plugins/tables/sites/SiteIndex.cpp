#include "plugins/tables/sites/SiteIndex.h"

#include "contract/TableTexts.h"
#include "plugins/tables/cells/Cell.h"
#include "plugins/tables/cells/Numbers.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

namespace vlt::driver {

namespace {

constexpr std::size_t None = std::numeric_limits<std::size_t>::max();
/// Positions are the same if they agree to about a metre.
constexpr double StepDeg = 1e-5;
constexpr double StepM = 1;

/// The number of steps in a coordinate, as a text.
std::string steps(double coordinate, double step)
{
    return std::to_string(std::llround(std::clamp(coordinate / step, -9e15, 9e15)));
}

} // namespace

SiteIndex::SiteIndex(const TableProfile &table, const SiteRoles &roles, CoordinateUnit unit)
    : m_table(&table)
    , m_roles(&roles)
    , m_unit(unit)
{}

std::string SiteIndex::keyOf(const std::string &id, const std::string &name,
                             const Position &position) const
{
    if (!id.empty())
        return "id " + id;
    if (!position.found)
        return "name " + name;
    const double step = m_unit == CoordinateUnit::Meters ? StepM : StepDeg;
    return "at " + steps(position.x, step) + ' ' + steps(position.y, step);
}

/// Whether a row with the same key belongs to a site.
bool SiteIndex::isSame(const IndexedSite &site, const std::string &name,
                       const Position &position) const
{
    if (m_roles->siteId >= 0 || !position.found)
        return !position.found || !site.position.found ||
               distanceM(site.position, position, m_unit) <= MaxSiteExtentM;
    return name.empty() || site.id == name || withoutSector(site.id) == withoutSector(name);
}

std::size_t SiteIndex::siteOf(int64_t row, const std::vector<const Cell *> &cells,
                              const Position &position)
{
    const std::string id = fieldText(cells, m_roles->siteId);
    const std::string name = fieldText(cells, m_roles->siteName);
    const bool isNameless = id.empty() && name.empty();
    const bool isNamed = m_roles->siteId >= 0 || m_roles->siteName >= 0;
    if (isNameless && !m_sites.empty() &&
        (!position.found ||
         (isNamed && distanceM(m_sites.back().position, position, m_unit) <= MaxSiteExtentM)))
        return m_sites.size() - 1;
    const auto [first, isNew] = m_firstOfKey.emplace(keyOf(id, name, position), m_sites.size());
    std::size_t last = None;
    for (std::size_t at = isNew ? None : first->second; at != None; at = m_next[at]) {
        IndexedSite &site = m_sites[at];
        if (isSame(site, name, position)) {
            if (!site.position.found)
                site.position = position;
            if (id.empty() && site.id != name && !name.empty())
                site.id = withoutSector(name);
            return at;
        }
        last = at;
    }
    if (last != None) {
        if (!id.empty())
            m_conflicts.push_back(
                {row, first->second, distanceM(m_sites[first->second].position, position, m_unit)});
        m_next[last] = m_sites.size();
    }
    m_sites.push_back({row, id.empty() ? name : id, position, 0, 0});
    m_next.push_back(None);
    return m_sites.size() - 1;
}

std::size_t SiteIndex::add(int64_t row, const std::vector<const Cell *> &cells,
                           const Position &position,
                           std::vector<std::optional<TransmitterValues>> transmitters)
{
    const std::size_t site = siteOf(row, cells, position);
    addTransmitters(site, std::move(transmitters));
    return site;
}

void SiteIndex::addTransmitters(std::size_t site,
                                std::vector<std::optional<TransmitterValues>> transmitters)
{
    for (std::optional<TransmitterValues> &transmitter : transmitters) {
        if (!transmitter)
            continue;
        m_transmitters.push_back(std::move(*transmitter));
        m_siteOfTransmitter.push_back(site);
    }
}

void SiteIndex::finish()
{
    std::vector<std::size_t> order(m_transmitters.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(), [this](std::size_t a, std::size_t b) {
        return m_siteOfTransmitter[a] < m_siteOfTransmitter[b];
    });
    std::vector<TransmitterValues> sorted;
    sorted.reserve(order.size());
    for (const std::size_t from : order) {
        IndexedSite &site = m_sites[m_siteOfTransmitter[from]];
        if (site.transmitterCount == 0)
            site.firstTransmitter = sorted.size();
        ++site.transmitterCount;
        sorted.push_back(std::move(m_transmitters[from]));
    }
    m_transmitters = std::move(sorted);
    m_siteOfTransmitter = {};
    m_firstOfKey = {};
    m_next = {};
}

const IndexedSite *SiteIndex::beginningIn(int64_t row) const
{
    // the sites are in the order of their first rows
    const auto found = std::lower_bound(
        m_sites.begin(), m_sites.end(), row,
        [](const IndexedSite &site, int64_t wanted) { return site.firstRow < wanted; });
    return found != m_sites.end() && found->firstRow == row ? &*found : nullptr;
}

std::pair<std::size_t, std::size_t> SiteIndex::transmitterRange() const
{
    const auto [fewest, most] = std::minmax_element(
        m_sites.begin(), m_sites.end(), [](const IndexedSite &a, const IndexedSite &b) {
            return a.transmitterCount < b.transmitterCount;
        });
    return fewest == m_sites.end() ? std::pair<std::size_t, std::size_t>()
                                   : std::pair(fewest->transmitterCount, most->transmitterCount);
}

void SiteIndex::addProblems(int64_t row, std::vector<RowProblem> &problems) const
{
    const auto found = std::lower_bound(
        m_conflicts.begin(), m_conflicts.end(), row,
        [](const Conflict &conflict, int64_t wanted) { return conflict.row < wanted; });
    if (found == m_conflicts.end() || found->row != row)
        return;
    const IndexedSite &other = m_sites[found->other];
    problems.push_back(
        {row, m_table->fields[static_cast<std::size_t>(m_roles->siteId)].name, false,
         contract::formatted("MESS_TAB_SITE_ELSEWHERE",
                             {quotation(other.id), numberText(std::round(found->distanceM)),
                              std::to_string(other.firstRow)})});
}

} // namespace vlt::driver
