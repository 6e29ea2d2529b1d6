#include "plugins/tables/ogr/SiteFates.h"

#include "contract/TableTexts.h"
#include "plugins/tables/roles/Vocabulary.h"
#include "plugins/tables/sites/JoinKey.h"
#include "plugins/tables/sites/PositionRepairs.h"

namespace vlt::driver {

SiteFates::SiteFates(const TableSource &source)
    : m_source(source)
    , m_reader(source)
    , m_positions(source.facts().table, source.facts().sites().point, source.facts().sites().unit)
    , m_index(source.facts().table, source.facts().sites().roles, source.facts().sites().unit,
              installedVocabulary().words)
{}

/// The index of the site to which a row belongs, found as when the table was opened.
std::size_t SiteFates::siteOf(const FieldCells &cells, int64_t row)
{
    std::vector<RowProblem> known;
    const std::size_t site =
        m_index.add(row, cells.cells(), m_positions.read(row, cells.cells(), known), {});
    if (const int field = m_source.facts().joinFields.site; field >= 0)
        m_sitesByKey.emplace(joinKey(fieldText(cells.cells(), field)), site);
    return site;
}

/// Sets the fate of a row that belongs to a site of the index.
void SiteFates::setSite(std::size_t site, bool losesTransmitters, ReportedRow &row) const
{
    const SiteIndex &index = *m_source.facts().siteIndex;
    const IndexedSite &indexed = index.sites()[site];
    const bool isFirst = !row.isSecond && indexed.firstRow == row.number;
    Position position = indexed.position();
    std::vector<RowProblem> unplaced;
    m_source.systems->transform(row.number, position, unplaced);
    row.site = index.idOf(indexed);
    if (position.found && (isFirst || !losesTransmitters)) {
        row.fate = isFirst ? Fate::Used : Fate::Merged;
        row.firstRow = indexed.firstRow;
    } else if (row.reasons.empty())
        row.reasons.push_back(
            {row.number,
             {},
             true,
             contract::formatted("MESS_TAB_SITE_UNPLACED", {quotation(row.site)})});
}

void SiteFates::read(const FieldCells &cells, ReportedRow &row)
{
    const TableFacts &facts = m_source.facts();
    const SiteLayout &layout = facts.sites();
    const SiteRow site = m_reader.read(row.number, cells, row.reasons);
    addRepairs(facts.table, layout.point, layout.unit, row.number, cells.cells(), row.reasons);
    if (facts.siteIndex)
        return setSite(siteOf(cells, row.number), site.losesTransmitters, row);
    row.site = fieldText(cells.cells(), layout.roles.siteId);
    if (row.site.empty())
        row.site = fieldText(cells.cells(), layout.roles.siteName);
    if (site.placed.found) {
        row.fate = Fate::Used;
        row.firstRow = row.number;
    } else if (!layout.point.found())
        row.reasons.push_back(
            {row.number, {}, true, contract::formatted("MESS_TAB_NO_COORDINATES")});
}

RowKind SiteFates::readSecond(const SecondTable &second, ReportedRow &row)
{
    if (!m_sectors)
        m_sectors.emplace(second, m_source.facts().joinFields.sector, m_sitesByKey);
    const RowKind kind = m_sectors->advanceToAny();
    SectorRow &sector = m_sectors->row();
    row.number = sector.number;
    if (kind != RowKind::Data)
        return kind;
    row.reasons = std::move(sector.problems);
    if (sector.site)
        setSite(*sector.site, sector.losesTransmitters, row);
    else if (row.reasons.empty())
        row.reasons.push_back(
            {row.number, {}, true, contract::formatted("MESS_TAB_NO_SITE_NAMED")});
    return kind;
}

} // namespace vlt::driver
