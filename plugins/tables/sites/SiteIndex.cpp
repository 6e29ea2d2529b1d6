#include "plugins/tables/sites/SiteIndex.h"

#include "contract/TableTexts.h"
#include "plugins/tables/cells/Cell.h"
#include "plugins/tables/cells/Numbers.h"
#include "plugins/tables/sites/JoinKey.h"
#include "plugins/tables/sites/SectorSuffix.h"

#include <algorithm>
#include <cmath>
#include <functional>

namespace vlt::driver {

namespace {

constexpr uint32_t None = HashIndex::None;
/// Places of one id that are compared with a row; more do not belong to an id.
constexpr int MaxPlacesOfId = 50;
/// Antennas of a mast may have positions of their own. Rows belong together within these distances:
constexpr double NamelessExtentM = 10;   ///< without a name
constexpr double NamedExtentM = 100;     ///< with the same name
constexpr double SectorNameExtentM = 30; ///< with names that differ by the sector
constexpr double OperatorExtentM = 20;   ///< with the same id, but of several operators
constexpr double MetresPerDegree = 111320;

int64_t steps(double coordinate, double step)
{
    return std::llround(std::floor(std::clamp(coordinate / step, -9e15, 9e15)));
}

/// Whether an id is that of one cell in the network, not that of a sector such as "A" or
/// "Sector 1".
bool isCellName(std::string_view id, std::string_view site)
{
    constexpr std::size_t MinSize = 5;
    constexpr std::ptrdiff_t MinDigits = 3;
    if (!site.empty() && id.size() > site.size() && id.starts_with(site))
        return true;
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    return id.size() >= MinSize && std::count_if(id.begin(), id.end(), isDigit) >= MinDigits;
}

std::size_t hashOfCell(const TransmitterValues &of, std::size_t site)
{
    static constexpr double NoNumber = -1e9;
    const auto text = std::hash<std::string_view>();
    const auto number = [](const std::optional<double> &value) {
        return std::hash<double>()(value.value_or(NoNumber));
    };
    const std::array parts = {site,
                              text(of.sectorId),
                              text(of.technology),
                              number(of.heightM),
                              number(of.azimuthDeg),
                              number(of.mechanicalTiltDeg),
                              number(of.electricalTiltDeg),
                              number(of.beamWidthDeg),
                              number(of.frequencyMHz)};
    return text(std::string_view(reinterpret_cast<const char *>(parts.data()), sizeof parts));
}

double extentM(bool isNamed)
{
    return isNamed ? NamedExtentM : NamelessExtentM;
}

} // namespace

SiteIndex::SiteIndex(const TableProfile &table, const SiteRoles &roles, CoordinateUnit unit,
                     const Vocabulary &vocabulary)
    : m_table(&table)
    , m_roles(&roles)
    , m_unit(unit)
    , m_vocabulary(&vocabulary)
{
    for (const ColumnRole &column : roles.columns) {
        if (column.role == Role::Operator)
            m_operator = column.field;
    }
    keep({}); // that of sites without an operator
}

/// The square of a position, or one beside it. Its sides are as long as the distance within which
/// rows belong together.
///
/// @param dx  squares to the east
/// @param dy  squares to the north
std::pair<int64_t, int64_t> SiteIndex::squareOf(const Key &key, int dx, int dy) const
{
    double step = extentM(key.kind == KeyKind::NamedPlace);
    if (m_unit == CoordinateUnit::Meters)
        return {steps(key.position.x, step) + dx, steps(key.position.y, step) + dy};
    constexpr double MinCosine = 0.01;
    step /= MetresPerDegree;
    const int64_t y = steps(key.position.y, step) + dy;
    const double cosine = std::cos(static_cast<double>(y) * step * M_PI / 180);
    return {steps(key.position.x, step / std::max(cosine, MinCosine)) + dx, y};
}

std::size_t SiteIndex::hashOf(const Key &key, int dx, int dy) const
{
    std::size_t hash = std::hash<std::string_view>()(key.text);
    if (key.isPlace()) {
        const auto square = squareOf(key, dx, dy);
        const std::array parts = {static_cast<int64_t>(hash), square.first, square.second};
        hash = std::hash<std::string_view>()(
            {reinterpret_cast<const char *>(parts.data()), sizeof parts});
    }
    return hash;
}

bool SiteIndex::hasKey(const IndexedSite &site, const Key &key) const
{
    const std::string_view id = idOf(site);
    if (!key.isPlace())
        return (key.kind == KeyKind::Id ? joinKey(id) : id) == key.text;
    const double distance = distanceM(site.position(), key.position, m_unit);
    if (key.kind == KeyKind::Place)
        return distance <= NamelessExtentM;
    if (id == key.name)
        return distance <= NamedExtentM;
    const std::string_view base = site.isWhole ? id : withoutSector(id, *m_vocabulary);
    return distance <= SectorNameExtentM &&
           (base == key.text || (key.name.empty() && joinKey(id) == key.text));
}

uint32_t SiteIndex::find(const Key &key) const
{
    constexpr std::array Squares = {std::pair(0, 0),  std::pair(1, 0),  std::pair(-1, 0),
                                    std::pair(0, 1),  std::pair(0, -1), std::pair(1, 1),
                                    std::pair(1, -1), std::pair(-1, 1), std::pair(-1, -1)};
    for (const auto &[dx, dy] : Squares) {
        const uint32_t found = m_ofKeys[static_cast<std::size_t>(key.kind)].find(
            hashOf(key, dx, dy), [&](uint32_t at) { return hasKey(m_sites[at], key); });
        if (found != None || !key.isPlace())
            return found;
    }
    return None;
}

/// Whether a site is that of a row with its id: it lies near, and is of the same operator.
bool SiteIndex::isSame(const IndexedSite &site, const Key &key) const
{
    const Position position = site.position();
    if (!position.found || !key.position.found)
        return true;
    const double distance = distanceM(position, key.position, m_unit);
    const bool isOfOther = !key.operatorName.empty() && site.operatorName != 0 &&
                           m_ids[site.operatorName] != key.operatorName;
    return distance <= (isOfOther ? OperatorExtentM : MaxSiteExtentM);
}

/// The site with an id near a position, where `first` is the first one with the id.
uint32_t SiteIndex::findNear(uint32_t first, const Key &key) const
{
    int places = 0;
    for (uint32_t at = first; at != None; at = m_next[at]) {
        if (isSame(m_sites[at], key))
            return at;
        if (++places == MaxPlacesOfId)
            return find({KeyKind::NamedPlace, key.text, key.position, {}, {}});
    }
    return None;
}

/// Adds a site.
///
/// @param first  the first one with its id
uint32_t SiteIndex::addSite(const IndexedSite &site, uint32_t first, const Key &key)
{
    const auto added = static_cast<uint32_t>(m_sites.size());
    m_sites.push_back(site);
    m_next.push_back(None);
    Key of = key;
    if (first != None) {
        m_conflicts.push_back(
            {site.firstRow, first, distanceM(m_sites[first].position(), key.position, m_unit)});
        int places = 1;
        uint32_t last = first;
        for (; m_next[last] != None; last = m_next[last])
            ++places;
        if (places < MaxPlacesOfId) {
            m_next[last] = added;
            return added;
        }
        of.kind = KeyKind::NamedPlace;
    }
    m_ofKeys[static_cast<std::size_t>(of.kind)].add(hashOf(of, 0, 0), added);
    return added;
}

uint32_t SiteIndex::keep(std::string_view id)
{
    m_ids.add(id);
    return static_cast<uint32_t>(m_ids.size() - 1);
}

uint32_t SiteIndex::siteOf(int64_t row, const std::vector<const Cell *> &cells,
                           const Position &position)
{
    const std::string id = fieldText(cells, m_roles->siteId);
    const std::string name = fieldText(cells, m_roles->siteName);
    const bool isNameless = id.empty() && name.empty();
    const bool isNamed = m_roles->siteId >= 0 || m_roles->siteName >= 0;
    if (isNameless && !m_sites.empty() &&
        (!position.found ||
         (isNamed && distanceM(m_sites.back().position(), position, m_unit) <= MaxSiteExtentM)))
        return static_cast<uint32_t>(m_sites.size() - 1);
    const std::string idKey = joinKey(id);
    const std::string operatorName = fieldText(cells, m_operator);
    const Key key =
        !id.empty()       ? Key{KeyKind::Id, idKey, position, {}, operatorName}
        : !position.found ? Key{KeyKind::Name, name, position, {}, {}}
        : name.empty()
            ? Key{KeyKind::Place, {}, position, {}, {}}
            : Key{KeyKind::NamedPlace, withoutSector(name, *m_vocabulary), position, name, {}};
    const uint32_t first = find(key);
    const uint32_t found = key.kind == KeyKind::Id ? findNear(first, key) : first;
    if (found == None) {
        const bool isWhole = key.kind != KeyKind::NamedPlace;
        return addSite({row, position.found ? position.x : NAN, position.found ? position.y : NAN,
                        keep(id.empty() ? name : id), isWhole,
                        operatorName.empty() ? 0 : keep(operatorName), 0, 0},
                       first, key);
    }
    IndexedSite &site = m_sites[found];
    if (!site.position().found && position.found) {
        site.x = position.x;
        site.y = position.y;
    }
    if (!site.isWhole && name != idOf(site)) {
        site.id = keep(key.text);
        site.isWhole = true;
    }
    return found;
}

std::size_t SiteIndex::add(int64_t row, const std::vector<const Cell *> &cells,
                           const Position &position,
                           const std::vector<std::optional<TransmitterValues>> &transmitters)
{
    const std::size_t site = siteOf(row, cells, position);
    for (const std::optional<TransmitterValues> &transmitter : transmitters) {
        if (!transmitter)
            continue;
        if (!isRepeated(site, *transmitter))
            addTransmitter(site, *transmitter);
        else if (m_repeatedRows.empty() || m_repeatedRows.back() != row)
            m_repeatedRows.push_back(row);
    }
    return site;
}

/// Whether a cell of a site was added before with the same values. If not, it is expected to be
/// added next.
bool SiteIndex::isRepeated(std::size_t site, const TransmitterValues &transmitter)
{
    if (!isCellName(transmitter.sectorId, idOf(m_sites[site])))
        return false;
    const std::size_t hash = hashOfCell(transmitter, site);
    const auto isIt = [&](uint32_t at) {
        return m_siteOfTransmitter[at] == site && m_transmitters[at] == transmitter;
    };
    if (m_ofCells.find(hash, isIt) != None)
        return true;
    m_ofCells.add(hash, static_cast<uint32_t>(m_siteOfTransmitter.size()));
    return false;
}

void SiteIndex::addTransmitters(std::size_t site,
                                const std::vector<std::optional<TransmitterValues>> &transmitters)
{
    for (const std::optional<TransmitterValues> &transmitter : transmitters) {
        if (transmitter)
            addTransmitter(site, *transmitter);
    }
}

void SiteIndex::addTransmitter(std::size_t site, const TransmitterValues &transmitter)
{
    m_transmitters.add(transmitter);
    m_siteOfTransmitter.push_back(static_cast<uint32_t>(site));
    ++m_sites[site].transmitterCount;
}

void SiteIndex::finish()
{
    uint32_t before = 0;
    for (IndexedSite &site : m_sites) {
        site.firstTransmitter = before;
        before += site.transmitterCount;
    }
    if (!std::is_sorted(m_siteOfTransmitter.begin(), m_siteOfTransmitter.end())) {
        std::vector<uint32_t> at(m_sites.size());
        m_order.resize(m_siteOfTransmitter.size());
        for (uint32_t i = 0; i < m_siteOfTransmitter.size(); ++i) {
            const uint32_t site = m_siteOfTransmitter[i];
            m_order[m_sites[site].firstTransmitter + at[site]++] = i;
        }
    }
    m_siteOfTransmitter = {};
    m_ofKeys = {};
    m_ofCells = {};
    m_next = {};
    m_transmitters.finish();
}

std::vector<TransmitterValues> SiteIndex::transmittersOf(const IndexedSite &site) const
{
    std::vector<TransmitterValues> transmitters;
    for (uint32_t i = 0; i < site.transmitterCount; ++i) {
        const uint32_t at = site.firstTransmitter + i;
        transmitters.push_back(m_transmitters[m_order.empty() ? at : m_order[at]]);
    }
    return transmitters;
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
    if (fewest == m_sites.end())
        return {};
    return {fewest->transmitterCount, most->transmitterCount};
}

void SiteIndex::addProblems(int64_t row, std::vector<RowProblem> &problems) const
{
    if (std::binary_search(m_repeatedRows.begin(), m_repeatedRows.end(), row))
        problems.push_back({row, {}, false, contract::formatted("MESS_TAB_REPEATED_CELL")});
    const auto found = std::lower_bound(
        m_conflicts.begin(), m_conflicts.end(), row,
        [](const Conflict &conflict, int64_t wanted) { return conflict.row < wanted; });
    if (found == m_conflicts.end() || found->row != row)
        return;
    const IndexedSite &other = m_sites[found->other];
    problems.push_back(
        {row, m_table->fields[static_cast<std::size_t>(m_roles->siteId)].name, false,
         contract::formatted("MESS_TAB_SITE_ELSEWHERE",
                             {quotation(idOf(other)), numberText(std::round(found->distanceM)),
                              std::to_string(other.firstRow)})});
}

} // namespace vlt::driver
