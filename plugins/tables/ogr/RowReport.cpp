#include "plugins/tables/ogr/RowReport.h"

#include "contract/TableTexts.h"
#include "plugins/tables/ogr/LinkFates.h"
#include "plugins/tables/ogr/SiteFates.h"

namespace vlt::driver {

namespace {

std::unique_ptr<RowFates> fatesOf(const TableSource &source)
{
    if (std::holds_alternative<SiteLayout>(source.facts().layout))
        return std::make_unique<SiteFates>(source);
    return std::make_unique<LinkFates>(source);
}

} // namespace

RowReport::RowReport(const TableSource &source)
    : m_source(source)
    , m_rows(source.file->rows())
    , m_cells(source.facts().table)
    , m_fates(fatesOf(source))
{}

/// Gives the reason why a row without data is left out.
void RowReport::explainKind()
{
    using Text = contract::TableTextId;
    const bool isTotal = m_row.kind == RowKind::Total;
    if (isTotal || m_row.kind == RowKind::RepeatedHeader)
        m_row.reasons.push_back({m_row.number,
                                 {},
                                 false,
                                 contract::formatted(isTotal ? Text("MESS_TAB_TOTAL_ROW")
                                                             : Text("MESS_TAB_REPEATED_HEADER"))});
}

bool RowReport::advance()
{
    m_row = {};
    if (!m_isSecond) {
        m_row.kind = m_rows->advanceToAny();
        m_row.number = m_rows->rowNumber();
        if (m_row.kind == RowKind::Data) {
            m_cells.take(m_rows->cells(), m_row.reasons);
            m_fates->read(m_cells, m_row);
        }
        m_isSecond = m_row.kind == RowKind::Nothing;
        if (m_isSecond)
            m_second = m_source.file->secondTable();
    }
    if (m_isSecond) {
        m_row.isSecond = true;
        m_row.kind = m_second ? m_fates->readSecond(*m_second, m_row) : RowKind::Nothing;
    }
    explainKind();
    return m_row.kind != RowKind::Nothing;
}

void RowCounts::add(Fate fate)
{
    int64_t &count = fate == Fate::Used ? used : fate == Fate::Merged ? merged : leftOut;
    ++count;
}

} // namespace vlt::driver
