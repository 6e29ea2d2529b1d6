#include "plugins/tables/ogr/LinkJoin.h"

#include "plugins/tables/links/LinkLayout.h"
#include "plugins/tables/ogr/ZoneSurvey.h"

namespace vlt::driver {

int endSiteSuitability(const TableProfile &start, const Vocabulary &vocabulary)
{
    if (holdsLinks(start, vocabulary) ||
        !holdsPositions(recogniseSiteLayout(start, vocabulary).point, start.fields))
        return 0;
    return siteSuitability(start, vocabulary);
}

namespace {

SiteLayout layoutOf(const SecondTable &sites)
{
    SiteLayout layout = recogniseSiteLayout(sites.profile(), installedVocabulary().words);
    surveyZones({&layout.point}, layout, sites.profile(), [&sites] { return sites.rows(); });
    return layout;
}

} // namespace

EndSiteRows::EndSiteRows(const SecondTable &sites)
    : m_layout(layoutOf(sites))
    , m_positions(sites.profile(), m_layout.point, m_layout.unit)
    , m_cells(sites.profile())
    , m_rows(sites.rows())
{}

bool EndSiteRows::advance()
{
    const bool isRow = m_rows->advance();
    if (isRow)
        read();
    return isRow;
}

RowKind EndSiteRows::advanceToAny()
{
    const RowKind kind = m_rows->advanceToAny();
    m_row.number = m_rows->rowNumber();
    if (kind == RowKind::Data)
        read();
    return kind;
}

void EndSiteRows::read()
{
    m_row.number = m_rows->rowNumber();
    m_row.problems.clear();
    m_cells.take(m_rows->cells(), m_row.problems);
    m_row.id = fieldText(m_cells.cells(), m_layout.roles.siteId);
    m_row.name = fieldText(m_cells.cells(), m_layout.roles.siteName);
    m_row.position = m_positions.read(m_row.number, m_cells.cells(), m_row.problems);
}

std::optional<EndSites> readEndSites(const SecondTable &sites)
{
    EndSiteRows rows(sites);
    const SiteLayout &layout = rows.layout();
    if (!layout.point.found() || (layout.roles.siteId < 0 && layout.roles.siteName < 0))
        return std::nullopt;
    auto directory = std::make_shared<SiteDirectory>(layout.unit);
    EndSites found = {directory, layout, sites.rolesOf(layout.roles.columns), {}};
    while (rows.advance()) {
        EndSiteRow &row = rows.row();
        directory->add(row.id, row.name, row.position);
        for (RowProblem &problem : row.problems) {
            problem.isError = false; // it is no row of the links
            found.problems.add(sites.located(std::move(problem)));
        }
    }
    return found;
}

} // namespace vlt::driver
