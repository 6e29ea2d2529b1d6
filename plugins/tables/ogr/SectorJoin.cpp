#include "plugins/tables/ogr/SectorJoin.h"

#include "contract/TableTexts.h"
#include "plugins/tables/ogr/FieldCells.h"
#include "plugins/tables/roles/Vocabulary.h"
#include "plugins/tables/sites/JoinKey.h"
#include "plugins/tables/sites/PositionReader.h"
#include "plugins/tables/sites/SectorTable.h"

#include <algorithm>
#include <unordered_map>

namespace vlt::driver {

namespace {

using Transmitters = std::vector<std::optional<TransmitterValues>>;

/// The sites by their keys, and the index of their rows.
struct Sites
{
    std::shared_ptr<SiteIndex> index;
    std::unordered_map<std::string, std::size_t> byKey;
};

Sites readSites(const TableProfile &table, const SiteLayout &layout, DataRows &rows, int keyField)
{
    Sites sites = {std::make_shared<SiteIndex>(table, layout.roles, layout.unit), {}};
    const PositionReader positions(table, layout.point, layout.unit);
    FieldCells cells(table);
    std::vector<RowProblem> problems; // they are reported when the rows are read again
    while (rows.advance()) {
        problems.clear();
        cells.take(rows.cells(), problems);
        const int64_t row = rows.rowNumber();
        const Position position = positions.read(row, cells.cells(), problems);
        const std::size_t site = sites.index->add(row, cells.cells(), position, {});
        sites.byKey.emplace(joinKey(fieldText(cells.cells(), keyField)), site);
    }
    return sites;
}

bool findColumns(const TableProfile &table, DataRows &rows, bool byName, JoinColumns &columns)
{
    FieldCells cells(table);
    std::vector<RowProblem> problems;
    while (rows.advance()) {
        problems.clear();
        cells.take(rows.cells(), problems);
        columns.add(cells.cells());
    }
    return columns.choose(byName);
}

/// Reads the transmitters of the second table and gives them to their sites.
class SectorRows
{
public:
    SectorRows(const SecondTable &sectors, const SiteRoles &roles, int idField, const Sites &sites,
               ProblemList &problems)
        : m_sectors(sectors)
        , m_table(sectors.profile())
        , m_idField(idField)
        , m_sites(sites)
        , m_problems(problems)
        , m_reader(m_table, roles, installedVocabulary().words)
    {}

    /// False if no row names one of the sites.
    bool read()
    {
        FieldCells cells(m_table);
        const std::unique_ptr<DataRows> rows = m_sectors.rows();
        std::vector<RowProblem> problems;
        while (rows->advance()) {
            problems.clear();
            const int64_t row = rows->rowNumber();
            cells.take(rows->cells(), problems);
            addRow(row, cells.cells(), m_reader.read(row, cells.cells(), problems), problems);
            for (RowProblem &problem : problems)
                m_problems.add(m_sectors.located(std::move(problem)));
        }
        return m_found > 0;
    }

private:
    void addRow(int64_t row, const std::vector<const Cell *> &cells, Transmitters transmitters,
                std::vector<RowProblem> &problems)
    {
        const std::string id = fieldText(cells, m_idField);
        if (!id.empty()) {
            const auto site = m_sites.byKey.find(joinKey(id));
            m_site = site == m_sites.byKey.end() ? std::nullopt : std::optional(site->second);
            m_found += m_site ? 1 : 0;
            if (!m_site)
                problems.push_back({row, fieldName(), false,
                                    contract::formatted("MESS_TAB_NO_SUCH_SITE", {quotation(id)})});
        } else if (!m_site && std::any_of(transmitters.begin(), transmitters.end(),
                                          [](const auto &values) { return values.has_value(); }))
            problems.push_back(
                {row, fieldName(), false, contract::formatted("MESS_TAB_NO_SITE_NAMED")});
        if (m_site)
            m_sites.index->addTransmitters(*m_site, std::move(transmitters));
    }

    const std::string &fieldName() const
    {
        return m_table.fields[static_cast<std::size_t>(m_idField)].name;
    }

    const SecondTable &m_sectors;
    const TableProfile &m_table;
    int m_idField; ///< with the id or name of the site
    const Sites &m_sites;
    ProblemList &m_problems;
    TransmitterReader m_reader;
    std::optional<std::size_t> m_site; ///< of the last row that names one
    std::size_t m_found = 0;           ///< rows whose site exists
};

} // namespace

std::optional<JoinedSites> joinSectors(const TableProfile &table, SiteLayout &layout,
                                       const OpenRows &siteRows, const SecondTable &sectors,
                                       bool byName)
{
    const SiteRoles roles =
        recogniseSiteLayout(sectors.profile(), installedVocabulary().words).roles;
    JoinColumns columns(table, layout.roles, sectors.profile(), roles);
    if (roles.transmitters.empty() || !findColumns(table, *siteRows(), byName, columns))
        return std::nullopt;
    if (columns.siteField() != layout.roles.siteName)
        layout.roles.siteId = columns.siteField();
    const Sites sites = readSites(table, layout, *siteRows(), columns.siteField());
    JoinedSites joined = {sites.index, roles.transmitters, {}};
    if (!SectorRows(sectors, roles, columns.sectorField(), sites, joined.problems).read())
        return std::nullopt;
    sites.index->finish();
    const auto bare =
        std::count_if(sites.index->sites().begin(), sites.index->sites().end(),
                      [](const IndexedSite &site) { return site.transmitterCount == 0; });
    if (bare > 0)
        joined.problems.add(sectors.located(
            {0, {}, false, contract::formatted("MESS_TAB_BARE_SITES", {std::to_string(bare)})}));
    return joined;
}

} // namespace vlt::driver
