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

bool RowReport::advance()
{
    m_row = {};
    if (!m_isSecond) {
        m_row.kind = m_rows->advanceToAny();
        m_row.number = m_rows->rowNumber();
        const auto leaveOut = [this](contract::TableTextId why) {
            m_row.reasons.push_back({m_row.number, {}, false, contract::formatted(why)});
        };
        switch (m_row.kind) {
        case RowKind::Data:
            m_cells.take(m_rows->cells(), m_row.reasons);
            m_fates->read(m_cells, m_row);
            return true;
        case RowKind::Total:
            leaveOut("MESS_TAB_TOTAL_ROW");
            return true;
        case RowKind::RepeatedHeader:
            leaveOut("MESS_TAB_REPEATED_HEADER");
            return true;
        case RowKind::Head:
            return true;
        case RowKind::Nothing:
            break;
        }
        m_isSecond = true;
        m_second = m_source.file->secondTable();
    }
    m_row.kind = RowKind::Data;
    m_row.isSecond = true;
    return m_second && m_fates->readSecond(*m_second, m_row);
}

void RowCounts::add(Fate fate)
{
    int64_t &count = fate == Fate::Used ? used : fate == Fate::Merged ? merged : leftOut;
    ++count;
}

} // namespace vlt::driver
