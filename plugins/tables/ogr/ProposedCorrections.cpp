#include "plugins/tables/ogr/ProposedCorrections.h"

#include "plugins/tables/doctor/Correction.h"
#include "plugins/tables/ogr/LinkRowReader.h"
#include "plugins/tables/roles/Vocabulary.h"
#include "plugins/tables/sites/PositionCorrections.h"

#include <algorithm>

namespace vlt::driver {

namespace {

using contract::CorrectedRow;
using contract::PositionCorrection;

/// A row with a wrong position, which is to be found again.
struct WantedRow
{
    StrayPosition stray;
    std::size_t finding = 0;
};

/// The rows with wrong positions in their order.
std::vector<WantedRow> wantedRows(const std::vector<Finding> &findings)
{
    std::vector<WantedRow> wanted;
    for (std::size_t i = 0; i < findings.size(); ++i) {
        for (const StrayPosition &stray : findings[i].strays)
            wanted.push_back({stray, i});
    }
    std::stable_sort(wanted.begin(), wanted.end(), [](const WantedRow &a, const WantedRow &b) {
        return a.stray.row < b.stray.row;
    });
    return wanted;
}

/// The rows of the corrections of each finding, while the table is read.
class RowCollector
{
public:
    explicit RowCollector(const std::vector<Finding> &findings)
        : m_wanted(wantedRows(findings))
        , m_corrections(findings.size())
        , m_rowCounts(findings.size())
    {}

    bool isEmpty() const { return m_wanted.empty(); }
    /// The wrong positions of a row.
    std::pair<std::vector<WantedRow>::const_iterator, std::vector<WantedRow>::const_iterator>
    find(int64_t row) const
    {
        const auto first =
            std::lower_bound(m_wanted.begin(), m_wanted.end(), row,
                             [](const WantedRow &a, int64_t b) { return a.stray.row < b; });
        const auto end = std::find_if(first, m_wanted.end(),
                                      [row](const WantedRow &of) { return of.stray.row != row; });
        return {first, end};
    }

    /// Adds a row whose position has the same mistake as a wanted one.
    void add(const WantedRow &wanted, int64_t row, const PositionTexts &texts)
    {
        constexpr std::size_t MaxBytes = 200; // so that a mapping file does not become too large
        const std::size_t bytes = texts.x.size() + texts.y.size();
        if (bytes == 0 || bytes > MaxBytes ||
            ++m_rowCounts[wanted.finding] > contract::MaxCorrectedRows)
            return;
        const PositionCorrection stated = statementOf(*wanted.stray.correction);
        Corrections &all = m_corrections[wanted.finding];
        auto found = std::find_if(all.begin(), all.end(), [&](const PositionCorrection &of) {
            return of.change == stated.change && of.factor == stated.factor;
        });
        if (found == all.end())
            found = all.insert(all.end(), stated);
        const CorrectedRow corrected = {row, texts.x, texts.y};
        if (found->rows.empty() || found->rows.back() != corrected) // both ends of a link
            found->rows.push_back(corrected);
    }

    /// The corrections; none of a finding with more rows than a mapping can state.
    std::vector<Corrections> finish()
    {
        for (std::size_t i = 0; i < m_corrections.size(); ++i) {
            if (m_rowCounts[i] > contract::MaxCorrectedRows)
                m_corrections[i].clear();
        }
        return std::move(m_corrections);
    }

private:
    std::vector<WantedRow> m_wanted;
    std::vector<Corrections> m_corrections; ///< by finding
    std::vector<std::size_t> m_rowCounts;   ///< by finding
};

/// Collects the rows of sites. All rows of a site have the mistake of the first one, which stands
/// for it in the findings.
void collectSites(const TableSource &source, RowCollector &collector)
{
    const TableFacts &facts = source.facts();
    const SiteLayout &layout = facts.sites();
    const PositionReader positions(facts.table, layout.point, layout.unit);
    SiteIndex index(facts.table, layout.roles, layout.unit, installedVocabulary().words);
    FieldCells cells(facts.table);
    std::vector<RowProblem> known;
    const std::unique_ptr<DataRows> rows = source.file->rows();
    while (rows->advance()) {
        known.clear();
        const int64_t row = rows->rowNumber();
        int64_t firstRow = row;
        if (facts.siteIndex) {
            cells.take(rows->cells(), known);
            const Position position = positions.read(row, cells.cells(), known);
            firstRow =
                facts.siteIndex->sites()[index.add(row, cells.cells(), position, {})].firstRow;
        }
        const auto [wanted, end] = collector.find(firstRow);
        if (wanted == end)
            continue;
        if (!facts.siteIndex)
            cells.take(rows->cells(), known);
        collector.add(*wanted, row, textsOf(layout.point, cells.cells()));
    }
}

void collectLinks(const TableSource &source, RowCollector &collector)
{
    const TableFacts &facts = source.facts();
    const LinkRowReader reader(source);
    FieldCells cells(facts.table);
    std::vector<RowProblem> known;
    const std::unique_ptr<DataRows> rows = source.file->rows();
    while (rows->advance()) {
        const int64_t row = rows->rowNumber();
        auto [wanted, end] = collector.find(row);
        if (wanted == end)
            continue;
        known.clear();
        cells.take(rows->cells(), known);
        const LinkRow link = reader.read(row, cells.cells(), known);
        for (; wanted != end; ++wanted) {
            for (std::size_t i = 0; i < link.inFile.size(); ++i) {
                const Position &position = link.inFile[i];
                if (position.x == wanted->stray.x && position.y == wanted->stray.y)
                    collector.add(*wanted, row,
                                  textsOf(facts.links().ends[i].point, cells.cells()));
            }
        }
    }
}

} // namespace

std::vector<Corrections> proposedCorrections(const TableSource &source,
                                             const std::vector<Finding> &findings)
{
    if (source.facts().endSites) // the positions stand in the other table
        return std::vector<Corrections>(findings.size());
    RowCollector collector(findings);
    if (!collector.isEmpty()) {
        if (std::holds_alternative<SiteLayout>(source.facts().layout))
            collectSites(source, collector);
        else
            collectLinks(source, collector);
    }
    std::vector<Corrections> all = collector.finish();
    for (std::size_t i = 0; i < findings.size(); ++i) {
        if (const auto &ofAll = findings[i].correction)
            all[i].push_back(*ofAll);
    }
    return all;
}

} // namespace vlt::driver
