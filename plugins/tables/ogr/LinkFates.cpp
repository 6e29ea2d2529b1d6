#include "plugins/tables/ogr/LinkFates.h"

#include "plugins/tables/sites/PositionRepairs.h"

namespace vlt::driver {

namespace {

/// The name of a link, or those of its ends.
std::string nameOf(const LinkValues &link)
{
    const std::string &a = link.ends[0].identifier;
    const std::string &b = link.ends[1].identifier;
    return !link.name.empty() || (a.empty() && b.empty()) ? link.name : a + " - " + b;
}

} // namespace

LinkFates::LinkFates(const TableSource &source) : m_source(source), m_reader(source) {}

void LinkFates::read(const FieldCells &cells, ReportedRow &row)
{
    const TableFacts &facts = m_source.facts();
    const LinkRow link = m_reader.read(row.number, cells.cells(), row.reasons);
    for (const LinkEndFields &end : facts.links().ends)
        addRepairs(facts.table, end.point, facts.links().unit, row.number, cells.cells(),
                   row.reasons);
    row.site = nameOf(link.values);
    if (!link.isPlaced())
        return;
    row.fate = Fate::Used;
    row.firstRow = row.number;
}

RowKind LinkFates::readSecond(const SecondTable &second, ReportedRow &row)
{
    if (!m_endSites)
        m_endSites.emplace(second);
    const RowKind kind = m_endSites->advanceToAny();
    EndSiteRow &site = m_endSites->row();
    row.number = site.number;
    if (kind != RowKind::Data)
        return kind;
    row.reasons = std::move(site.problems);
    row.site = site.id.empty() ? site.name : site.id;
    if (site.position.found) {
        row.fate = Fate::Used;
        row.firstRow = row.number;
    }
    return kind;
}

} // namespace vlt::driver
