#include "plugins/tables/ogr/SiteRowReader.h"

#include "plugins/tables/roles/Vocabulary.h"

#include <algorithm>

namespace vlt::driver {

SiteRowReader::SiteRowReader(const TableSource &source)
    : m_facts(&source.facts())
    , m_systems(source.systems)
    , m_positions(m_facts->table, m_facts->sites().point, m_facts->sites().unit,
                  m_systems->halfTurn())
    , m_transmitters(m_facts->table, m_facts->sites().roles, installedVocabulary().words)
    , m_plain(m_facts->table, m_facts->sites().roles)
    , m_offersTransmitters(!m_facts->siteIndex &&
                           std::any_of(m_facts->sites().offered.begin(),
                                       m_facts->sites().offered.end(),
                                       [](const OfferedField &of) { return of.isOfTransmitter(); }))
{}

SiteRow SiteRowReader::read(int64_t row, const FieldCells &fields,
                            std::vector<RowProblem> &problems) const
{
    const std::vector<const Cell *> &cells = fields.cells();
    SiteRow site;
    // a row that continues a site, as merged cells do, needs no position
    const bool continues = m_facts->siteIndex && !m_facts->siteIndex->beginningIn(row);
    if (!continues || !m_positions.isEmpty(cells))
        site.inFile = m_positions.read(row, cells, problems);
    if (m_offersTransmitters || !m_plain.accepts(fields)) {
        const std::size_t before = problems.size();
        site.transmitters = m_transmitters.read(row, cells, problems);
        site.losesTransmitters = problems.size() > before && !hasTransmitters(site.transmitters);
    }
    if (const auto &index = m_facts->siteIndex) {
        index->addProblems(row, problems);
        const IndexedSite *begun = index->beginningIn(row);
        if (begun && begun->position().found && !site.inFile.found)
            site.inFile = begun->position();
    }
    site.placed = site.inFile;
    m_systems->transform(row, site.placed, problems);
    return site;
}

} // namespace vlt::driver
