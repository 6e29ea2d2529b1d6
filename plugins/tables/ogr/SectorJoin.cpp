#include "plugins/tables/ogr/SectorJoin.h"

#include "contract/TableTexts.h"
#include "plugins/tables/ogr/FieldCells.h"
#include "plugins/tables/roles/Vocabulary.h"
#include "plugins/tables/sites/PositionReader.h"
#include "plugins/tables/sites/SectorTable.h"

#include <algorithm>

namespace vlt::driver {

namespace {

using Transmitters = std::vector<std::optional<TransmitterValues>>;

std::shared_ptr<SiteIndex> readSites(const TableProfile &table, const SiteLayout &layout,
                                     DataRows &rows, SiteKeys &keys)
{
    auto index = std::make_shared<SiteIndex>(table, layout.roles, layout.unit);
    const PositionReader positions(table, layout.point, layout.unit);
    FieldCells cells(table);
    std::vector<RowProblem> problems; // they are reported when the rows are read again
    while (rows.advance()) {
        problems.clear();
        cells.take(rows.cells(), problems);
        const int64_t row = rows.rowNumber();
        const Position position = positions.read(row, cells.cells(), problems);
        keys.add(cells.cells(), index->add(row, cells.cells(), position, {}));
    }
    return index;
}

/// Reads the transmitters of the second table and gives them to their sites.
class SectorRows
{
public:
    SectorRows(const SecondTable &sectors, const SiteRoles &roles, const SiteKeys &keys,
               SiteIndex &index, ProblemList &problems)
        : m_sectors(sectors)
        , m_table(sectors.profile())
        , m_keys(keys)
        , m_index(index)
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
        const std::string id = fieldText(cells, m_keys.sectorField());
        if (!id.empty()) {
            m_site = m_keys.find(id);
            m_found += m_site ? 1 : 0;
            if (!m_site)
                problems.push_back({row, fieldName(), false,
                                    contract::formatted("MESS_TAB_NO_SUCH_SITE", {quotation(id)})});
        } else if (!m_site && std::any_of(transmitters.begin(), transmitters.end(),
                                          [](const auto &values) { return values.has_value(); }))
            problems.push_back(
                {row, fieldName(), false, contract::formatted("MESS_TAB_NO_SITE_NAMED")});
        if (m_site)
            m_index.addTransmitters(*m_site, std::move(transmitters));
    }

    const std::string &fieldName() const
    {
        return m_table.fields[static_cast<std::size_t>(m_keys.sectorField())].name;
    }

    const SecondTable &m_sectors;
    const TableProfile &m_table;
    const SiteKeys &m_keys;
    SiteIndex &m_index;
    ProblemList &m_problems;
    TransmitterReader m_reader;
    std::optional<std::size_t> m_site; ///< of the last row that names one
    std::size_t m_found = 0;           ///< rows whose site exists
};

} // namespace

std::optional<JoinedSites> joinSectors(const TableProfile &table, const SiteLayout &layout,
                                       DataRows &siteRows, const SecondTable &sectors, bool byName)
{
    const SiteRoles roles =
        recogniseSiteLayout(sectors.profile(), installedVocabulary().words).roles;
    SiteKeys keys(table, layout.roles, sectors.profile(), roles);
    const std::shared_ptr<SiteIndex> index = readSites(table, layout, siteRows, keys);
    JoinedSites joined = {index, roles.transmitters, {}};
    if (!keys.choose(byName) || !SectorRows(sectors, roles, keys, *index, joined.problems).read())
        return std::nullopt;
    index->finish();
    const auto bare =
        std::count_if(index->sites().begin(), index->sites().end(),
                      [](const IndexedSite &site) { return site.transmitterCount == 0; });
    if (bare > 0)
        joined.problems.add(sectors.located(
            {0, {}, false, contract::formatted("MESS_TAB_BARE_SITES", {std::to_string(bare)})}));
    return joined;
}

} // namespace vlt::driver
