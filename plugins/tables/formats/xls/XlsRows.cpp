#include "plugins/tables/formats/xls/XlsRows.h"

#include "plugins/tables/bytes/LittleEndian.h"
#include "plugins/tables/bytes/Refusal.h"
#include "plugins/tables/cells/OfficeDates.h"

#include <algorithm>

namespace vlt::driver {

namespace {

constexpr std::size_t CellHead = 6; ///< row, column, style

bool holdsZero(const std::string &text)
{
    return text.find('\0') != std::string::npos;
}

double rkNumber(uint32_t rk)
{
    double value;
    if (rk & 2)
        value = static_cast<double>(static_cast<int32_t>(rk) >> 2);
    else {
        const uint64_t bits = uint64_t{rk & 0xFFFFFFFC} << 32;
        std::memcpy(&value, &bits, sizeof value);
    }
    return rk & 1 ? value / 100 : value;
}

const char *errorText(uint32_t code)
{
    switch (code) {
    case 0x00:
        return "#NULL!";
    case 0x07:
        return "#DIV/0!";
    case 0x0F:
        return "#VALUE!";
    case 0x17:
        return "#REF!";
    case 0x1D:
        return "#NAME?";
    case 0x24:
        return "#NUM!";
    default:
        return "#N/A";
    }
}

} // namespace

XlsRows::XlsRows(std::unique_ptr<ByteSource> sheet, std::shared_ptr<const XlsContext> context)
    : m_records(std::move(sheet))
    , m_context(std::move(context))
{
    if (m_records.next() && m_records.type() != XlsBof)
        throw RefusedFile(Refusal::Malformed, "MESS_TAB_SHEET_MISPLACED");
}

/// The list for a cell of this row: that of the current row, or that of the next row, whose first
/// cell ends the current one.
std::vector<XlsRows::RawCell> &XlsRows::cellsOf(int row)
{
    if (m_row < 0 || (m_cells.empty() && m_nextRow < 0))
        m_row = row;
    if (row == m_row)
        return m_cells;
    m_nextRow = row;
    return m_nextCells;
}

void XlsRows::add(std::string_view data, RawCell::Kind kind, double number, uint32_t index)
{
    if (data.size() >= CellHead)
        cellsOf(u16(data.data()))
            .push_back({u16(data.data() + 2), u16(data.data() + 4), kind, index, number});
}

void XlsRows::addText(std::string_view data, std::string text)
{
    if (data.size() < CellHead)
        return;
    std::vector<RawCell> &cells = cellsOf(u16(data.data()));
    std::vector<std::string> &texts = &cells == &m_cells ? m_texts : m_nextTexts;
    cells.push_back({u16(data.data() + 2), u16(data.data() + 4), RawCell::Kind::OwnText,
                     static_cast<uint32_t>(texts.size()), 0});
    texts.push_back(std::move(text));
}

/// The properties of a row, which stand before its cells.
void XlsRows::readRow(std::string_view data)
{
    constexpr std::size_t Flags = 12;
    constexpr uint16_t Hidden = 0x20;
    if (data.size() >= Flags + 2 && (u16(data.data() + Flags) & Hidden) != 0)
        m_hidden.insert(u16(data.data()));
}

void XlsRows::readMulRk(std::string_view data)
{
    if (data.size() < CellHead)
        return;
    std::vector<RawCell> &cells = cellsOf(u16(data.data()));
    uint16_t column = u16(data.data() + 2);
    for (std::size_t at = 4; at + 6 + 2 <= data.size(); at += 6)
        cells.push_back({column++, u16(data.data() + at), RawCell::Kind::Number, 0,
                         rkNumber(u32(data.data() + at + 2))});
}

void XlsRows::readBoolErr(std::string_view data)
{
    if (data.size() >= CellHead + 2)
        add(data, data[CellHead + 1] ? RawCell::Kind::Error : RawCell::Kind::Boolean, 0,
            static_cast<unsigned char>(data[CellHead]));
}

/// A formula has its last result as value. If that is a text, it follows in the next record.
void XlsRows::readFormula(std::string_view data)
{
    if (data.size() < CellHead + 8)
        return;
    const char *result = data.data() + CellHead;
    if (u16(result + 6) != 0xFFFF)
        return add(data, RawCell::Kind::Number, littleEndian<double>(result), 0);
    const auto code = static_cast<unsigned char>(result[2]);
    if (result[0] == 1)
        add(data, RawCell::Kind::Boolean, 0, code);
    else if (result[0] == 2)
        add(data, RawCell::Kind::Error, 0, code);
    else if (result[0] == 0)
        addText(data, {});
}

/// Reads one record; false if it is a cell of another row or the sheet ends.
bool XlsRows::readRecord()
{
    if (!m_records.next())
        throw RefusedFile(Refusal::Malformed, "MESS_TAB_WORKBOOK_CUT");
    const std::string_view data = m_records.data();
    switch (m_records.type()) {
    case XlsNumber:
        if (data.size() >= CellHead + 8)
            add(data, RawCell::Kind::Number, littleEndian<double>(data.data() + CellHead), 0);
        break;
    case XlsRk:
        if (data.size() >= CellHead + 4)
            add(data, RawCell::Kind::Number, rkNumber(u32(data.data() + CellHead)), 0);
        break;
    case XlsRow:
        readRow(data);
        break;
    case XlsMulRk:
        readMulRk(data);
        break;
    case XlsLabelSst:
        if (data.size() >= CellHead + 4)
            add(data, RawCell::Kind::SharedText, 0, u32(data.data() + CellHead));
        break;
    case XlsLabel:
    case XlsRString:
        if (data.size() > CellHead)
            addText(data, xlsText(data.substr(CellHead), *m_context));
        break;
    case XlsBoolErr:
        readBoolErr(data);
        break;
    case XlsFormula:
    case XlsFormula3: // some writers use records of several versions
    case XlsFormula4:
        readFormula(data);
        break;
    case XlsString:
        if (std::vector<std::string> &texts = m_nextRow >= 0 ? m_nextTexts : m_texts;
            !texts.empty())
            texts.back() = xlsText(data, *m_context);
        break;
    case XlsBof: // a chart inside the sheet
        while (m_records.next() && m_records.type() != XlsEof)
            continue;
        break;
    case XlsEof:
        m_ended = true;
        return false;
    default:
        break;
    }
    return m_nextRow < 0 || m_records.peek() == XlsString;
}

bool XlsRows::advance()
{
    m_cells.clear();
    m_texts.clear();
    m_row = m_nextRow;
    if (m_nextRow >= 0) {
        m_cells.swap(m_nextCells);
        m_texts.swap(m_nextTexts);
        m_nextRow = -1;
    }
    while (!m_ended && readRecord())
        continue;
    // Numbers of rows have to increase, because they identify the features.
    m_rowNumber = std::max<int64_t>(m_row, m_rowNumber) + 1;
    return !m_cells.empty();
}

bool XlsRows::hasContent(int lastColumn)
{
    const RawCell *suspect = nullptr;
    for (const RawCell &cell : m_cells) {
        if (cell.column > lastColumn)
            continue;
        if (cell.kind == RawCell::Kind::OwnText) {
            if (!trimmed(m_texts[cell.index]).empty())
                return true;
        } else if (cell.kind != RawCell::Kind::SharedText ||
                   (suspect && suspect->index != cell.index))
            return true;
        else
            suspect = &cell;
    }
    if (!suspect)
        return false;
    const auto text = m_context->strings->at(suspect->index);
    return !text || !trimmed(*text).empty(); // a missing text was not blank
}

uint64_t XlsRows::fingerprint()
{
    const RawCell &first = m_cells.front();
    return first.kind == RawCell::Kind::OwnText ? fingerprintOf(m_texts[first.index])
                                                : first.index ^ std::hash<double>()(first.number);
}

void XlsRows::cells(Row &row)
{
    row.clear();
    row.number = rowNumber();
    if (m_context->strings->holdZeros() || std::any_of(m_texts.begin(), m_texts.end(), holdsZero))
        row.expectZeros();
    for (const RawCell &raw : m_cells) {
        Cell cell = {raw.column, Cell::Kind::Text, {}, 0};
        switch (raw.kind) {
        case RawCell::Kind::Number:
            cell.kind = Cell::Kind::Number;
            cell.number = raw.number;
            if (raw.style < m_context->dateStyles.size() && m_context->dateStyles[raw.style]) {
                if (std::string date = isoDate(raw.number, m_context->datesFrom1904);
                    !date.empty()) {
                    cell.kind = Cell::Kind::Date;
                    cell.text = row.keep(std::move(date));
                }
            }
            break;
        case RawCell::Kind::SharedText:
            if (leavesOut(raw.column))
                continue;
            if (const auto text = m_context->strings->at(raw.index))
                cell.text = *text;
            else
                row.addMissingText(raw.column, std::to_string(raw.index));
            break;
        case RawCell::Kind::OwnText:
            cell.text = m_texts[raw.index];
            break;
        case RawCell::Kind::Boolean:
            cell.kind = Cell::Kind::Boolean;
            cell.text = raw.index ? "TRUE" : "FALSE";
            break;
        case RawCell::Kind::Error:
            cell.kind = Cell::Kind::Error;
            cell.text = errorText(raw.index);
            break;
        }
        if (cell.kind == Cell::Kind::Number || !trimmed(cell.text).empty())
            row.add(cell);
    }
    if (!std::is_sorted(row.cells.begin(), row.cells.end(),
                        [](const Cell &a, const Cell &b) { return a.column < b.column; }))
        std::stable_sort(row.cells.begin(), row.cells.end(),
                         [](const Cell &a, const Cell &b) { return a.column < b.column; });
}

} // namespace vlt::driver
