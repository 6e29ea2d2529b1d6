#include "plugins/tables/table/TableScan.h"

#include "plugins/tables/table/TotalRow.h"

#include <algorithm>
#include <limits>

namespace vlt::driver {

namespace {

constexpr uint64_t RowsSampledFirst = 1000;
constexpr std::size_t SamplesPerColumn = 200;
constexpr std::size_t SamplesPerTable = 200000; ///< but at least ten of each column
constexpr uint64_t SampleEvery = 256;           ///< one in 256 of the rows after the first ones
constexpr uint64_t RowsPerMark = 4096;
constexpr std::size_t MaxLeftOut = 10000; ///< further rows without data are read as data

/// One walk over all rows.
class Scan
{
public:
    Scan(TableProfile &profile, const Vocabulary &vocabulary, TableSample &sample)
        : m_profile(profile)
        , m_vocabulary(vocabulary)
        , m_sample(sample)
    {}

    void run(DataRows &rows, uint64_t maxRows)
    {
        while (m_profile.rowCount < maxRows && rows.advance()) {
            if (!m_totals.empty() && rows.rowNumber() != m_totals.back() + 1)
                leaveOutTotals();
            if (m_profile.rowCount == RowsSampledFirst) {
                m_textColumns = m_sample.textColumns();
                rows.leaveOutTexts(&m_textColumns);
            }
            if (m_profile.rowCount % RowsPerMark == 0 && rows.position() > 0)
                m_profile.marks.push_back({rows.rowNumber(), rows.position()});
            if (!isWithoutData(rows))
                addData(rows);
        }
        leaveOutTotals();
        m_profile.repeatedHeaders = rows.repeatedHeaders();
        std::sort(m_profile.leftOutRows.begin(), m_profile.leftOutRows.end());
    }

private:
    bool isAmongFirst() const { return m_profile.rowCount < RowsSampledFirst; }

    /// Whether the row may be a total or a header whose first text is written in another form. Of
    /// the rows behind the first ones, only small ones are read.
    bool isWithoutData(DataRows &rows)
    {
        const std::size_t size = rows.size();
        if (!isAmongFirst() && size >= m_minimumSize && size * 2 > m_size / RowsSampledFirst)
            return false;
        if (m_profile.leftOutRows.size() + m_totals.size() >= MaxLeftOut)
            return false;
        const Row &row = rows.cellsWithTexts();
        const auto &header = m_profile.header.rows;
        if (std::any_of(header.begin(), header.end(),
                        [&row](const HeaderRow &other) { return repeats(row, other); })) {
            leaveOutTotals();
            m_profile.leftOutRows.push_back(rows.rowNumber());
            return true;
        }
        if (!isTotalRow(row, m_sample.columns, m_sample.rows, m_vocabulary))
            return false;
        m_totals.push_back(rows.rowNumber());
        return true;
    }

    void addData(DataRows &rows)
    {
        if (!m_totals.empty()) { // rows of data follow directly, so they were data, too
            m_profile.rowCount += m_totals.size();
            m_profile.allRowsSampled = false;
            m_totals.clear();
        }
        if (isAmongFirst()) {
            m_size += rows.size();
            m_minimumSize = std::min(m_minimumSize, rows.size());
        }
        if (isAmongFirst() || m_profile.rowCount % SampleEvery == 0)
            m_sample.add(rows.cells());
        else
            m_profile.allRowsSampled = false;
        ++m_profile.rowCount;
        if (rows.isHidden() && m_profile.hiddenRows++ == 0)
            m_profile.firstHiddenRow = rows.rowNumber();
    }

    void leaveOutTotals()
    {
        for (std::vector<int64_t> *rows : {&m_profile.totalRows, &m_profile.leftOutRows})
            rows->insert(rows->end(), m_totals.begin(), m_totals.end());
        m_totals.clear();
    }

    TableProfile &m_profile;
    const Vocabulary &m_vocabulary;
    TableSample &m_sample;
    std::size_t m_size = 0; ///< of the first rows together
    std::size_t m_minimumSize = std::numeric_limits<std::size_t>::max();
    std::vector<char> m_textColumns;
    std::vector<int64_t> m_totals; ///< the last rows, if they may be sums
};

} // namespace

void TableSample::add(const Row &row)
{
    ++rows;
    if (!row.cells.empty() && static_cast<std::size_t>(row.cells.back().column) >= columns.size())
        columns.resize(static_cast<std::size_t>(row.cells.back().column) + 1);
    const std::size_t kept = std::clamp<std::size_t>(
        SamplesPerTable / std::max<std::size_t>(columns.size(), 1), 10, SamplesPerColumn);
    for (const Cell &cell : row.cells)
        columns[static_cast<std::size_t>(cell.column)].add(cell, kept);
    if (firstRows.size() >= kept)
        return;
    firstRows.emplace_back();
    for (const Cell &cell : row.cells)
        firstRows.back().emplace_back(cell.column, sampleText(cell));
}

std::vector<std::vector<std::string>>
TableSample::sampledColumns(const std::vector<Field> &fields) const
{
    std::vector<std::vector<std::string>> texts(fields.size(),
                                                std::vector<std::string>(firstRows.size()));
    for (std::size_t row = 0; row < firstRows.size(); ++row) {
        std::size_t field = 0;
        for (const auto &[column, text] : firstRows[row]) {
            while (field < fields.size() && fields[field].column < column)
                ++field;
            if (field < fields.size() && fields[field].column == column)
                texts[field][row] = text;
        }
    }
    return texts;
}

std::vector<char> TableSample::textColumns() const
{
    std::vector<char> text(columns.size());
    std::transform(columns.begin(), columns.end(), text.begin(),
                   [](const ColumnStatistics &column) { return column.isText(); });
    return text;
}

void scanTable(const Sheet &sheet, const std::shared_ptr<TableProfile> &profile,
               const Vocabulary &vocabulary, TableSample &sample, uint64_t maxRows)
{
    profile->rowCount = 0;
    profile->allRowsSampled = true;
    profile->marks.clear();
    profile->leftOutRows.clear();
    profile->totalRows.clear();
    profile->hiddenRows = 0;
    DataRows rows(sheet, profile);
    Scan(*profile, vocabulary, sample).run(rows, maxRows);
}

} // namespace vlt::driver
