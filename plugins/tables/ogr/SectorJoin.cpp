#include "plugins/tables/ogr/SectorJoin.h"

#include "contract/TableTexts.h"
#include "plugins/tables/roles/Vocabulary.h"
#include "plugins/tables/sites/JoinKey.h"
#include "plugins/tables/sites/PositionReader.h"
#include "plugins/tables/sites/SectorTable.h"

#include <algorithm>

namespace vlt::driver {

namespace {

/// The sites by their keys, and the index of their rows.
struct Sites
{
    std::shared_ptr<SiteIndex> index;
    SiteNumbers byKey;
};

Sites readSites(const TableProfile &table, const SiteLayout &layout, DataRows &rows, int keyField)
{
    Sites sites = {
        std::make_shared<SiteIndex>(table, layout.roles, layout.unit, installedVocabulary().words),
        {}};
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

/// Lets the column that joins the tables, and no other one, have the role of an id or name.
///
/// @param evidence  gives the evidence of a column without a role
template<typename Evidence>
void nameSites(std::vector<ColumnRole> &columns, int field, Role role, Evidence evidence)
{
    std::erase_if(columns, [&](const ColumnRole &column) {
        return column.role == role && column.field != field;
    });
    const auto own =
        std::find_if(columns.begin(), columns.end(),
                     [field](const ColumnRole &column) { return column.field == field; });
    if (own != columns.end())
        own->role = role;
    else
        columns.push_back({field, role, -1, evidence()});
}

/// Gives the transmitters of the second table to their sites. False if no row names one of them.
bool addTransmitters(SectorRows &rows, const SecondTable &sectors, SiteIndex &index,
                     ProblemList &problems)
{
    bool found = false;
    while (rows.advance()) {
        SectorRow &row = rows.row();
        if (row.site)
            index.addTransmitters(*row.site, row.transmitters);
        found = found || row.site;
        for (RowProblem &problem : row.problems)
            problems.add(sectors.located(std::move(problem)));
    }
    return found;
}

} // namespace

SectorRows::SectorRows(const SecondTable &sectors, int idField, const SiteNumbers &sites)
    : m_table(sectors.profile())
    , m_roles(recogniseSiteLayout(m_table, installedVocabulary().words).roles)
    , m_idField(idField)
    , m_sites(sites)
    , m_reader(m_table, m_roles, installedVocabulary().words)
    , m_cells(m_table)
    , m_rows(sectors.rows())
{}

bool SectorRows::advance()
{
    const bool isRow = m_rows->advance();
    if (isRow)
        read();
    return isRow;
}

RowKind SectorRows::advanceToAny()
{
    const RowKind kind = m_rows->advanceToAny();
    m_row.number = m_rows->rowNumber();
    if (kind == RowKind::Data)
        read();
    return kind;
}

void SectorRows::read()
{
    m_row.number = m_rows->rowNumber();
    m_row.problems.clear();
    m_cells.take(m_rows->cells(), m_row.problems);
    const std::size_t before = m_row.problems.size();
    m_row.transmitters = m_reader.read(m_row.number, m_cells.cells(), m_row.problems);
    m_row.losesTransmitters =
        m_row.problems.size() > before && !hasTransmitters(m_row.transmitters);
    findSite(m_cells.cells());
}

void SectorRows::findSite(const std::vector<const Cell *> &cells)
{
    const std::string id = fieldText(cells, m_idField);
    const auto report = [this](const std::string &text) {
        const Field &field = m_table.fields[static_cast<std::size_t>(m_idField)];
        m_row.problems.push_back({m_row.number, field.name, false, text});
    };
    if (!id.empty()) {
        const auto site = m_sites.find(joinKey(id));
        m_row.site = site == m_sites.end() ? std::nullopt : std::optional(site->second);
        if (!m_row.site)
            report(contract::formatted("MESS_TAB_NO_SUCH_SITE", {quotation(id)}));
    } else if (!m_row.site && hasTransmitters(m_row.transmitters))
        report(contract::formatted("MESS_TAB_NO_SITE_NAMED"));
}

std::optional<JoinedSites> joinSectors(const TableProfile &table, SiteLayout &layout,
                                       const OpenRows &siteRows, const SecondTable &sectors,
                                       bool byName)
{
    SiteRoles roles = recogniseSiteLayout(sectors.profile(), installedVocabulary().words).roles;
    JoinColumns columns(table, layout.roles, sectors.profile(), roles);
    if (roles.transmitters.empty() || !findColumns(table, *siteRows(), byName, columns))
        return std::nullopt;
    const bool joinsNames = columns.siteField() == layout.roles.siteName;
    if (!joinsNames)
        layout.roles.siteId = columns.siteField();
    nameSites(layout.roles.columns, columns.siteField(), joinsNames ? Role::SiteName : Role::SiteId,
              [&] { return columns.siteEvidence(); });
    nameSites(roles.columns, columns.sectorField(),
              columns.sectorField() == roles.siteName ? Role::SiteName : Role::SiteId,
              [&] { return columns.sectorEvidence(); });
    const Sites sites = readSites(table, layout, *siteRows(), columns.siteField());
    JoinedSites joined = {sites.index,
                          {columns.siteField(), columns.sectorField()},
                          roles.transmitters,
                          sectors.rolesOf(roles.columns),
                          {}};
    for (const RowProblem &problem : roles.problems)
        joined.problems.add(sectors.located(problem));
    SectorRows rows(sectors, columns.sectorField(), sites.byKey);
    if (!addTransmitters(rows, sectors, *sites.index, joined.problems))
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
