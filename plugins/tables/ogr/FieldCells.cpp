#include "plugins/tables/ogr/FieldCells.h"

#include "contract/TableTexts.h"

#include <algorithm>

namespace vlt::driver {

FieldCells::FieldCells(const TableProfile &table)
    : m_table(&table)
    , m_fieldOfColumn(static_cast<std::size_t>(table.lastColumn) + 1, -1)
    , m_cells(table.fields.size())
    , m_numbers(table.fields.size())
    , m_null(table.fields.size())
{
    for (std::size_t field = 0; field < table.fields.size(); ++field)
        m_fieldOfColumn[static_cast<std::size_t>(table.fields[field].column)] =
            static_cast<int>(field);
}

namespace {

constexpr std::size_t ExactDigits = 15;

/// Whether a text consists of the digits of a name and would lose some of them as a number.
bool losesDigits(const Cell &cell, std::string_view text)
{
    const bool mayLose = text.size() > ExactDigits ||
                         (text.size() > 1 && text[0] == '0' && text[1] >= '0' && text[1] <= '9') ||
                         text.starts_with('+');
    if (!mayLose || cell.kind != Cell::Kind::Text)
        return false;
    const NumberShape shape = numberShape(text);
    return shape.isIdentifier && shape.isWhole;
}

} // namespace

void FieldCells::takeFaults(int64_t row, const std::vector<CellFault> &faults,
                            std::vector<RowProblem> &problems) const
{
    for (const CellFault &fault : faults) {
        if (fault.column > m_table->lastColumn)
            continue; // cells behind the last column are reported by take()
        const int field =
            fault.column < 0 ? -1 : m_fieldOfColumn[static_cast<std::size_t>(fault.column)];
        if (field < 0 && fault.column >= 0)
            continue; // the column is not a field
        const std::string column =
            field < 0 ? std::string() : m_table->fields[static_cast<std::size_t>(field)].name;
        problems.push_back({row, column, false, fault.text});
    }
}

void FieldCells::take(const Row &row, std::vector<RowProblem> &problems)
{
    std::fill(m_cells.begin(), m_cells.end(), nullptr);
    takeFaults(row.number, row.faults, problems);
    for (const Cell &cell : row.cells) {
        if (cell.column > m_table->lastColumn) {
            problems.push_back(
                {row.number,
                 {},
                 false,
                 contract::formatted("MESS_TAB_BEHIND_LAST", {quotation(cellText(cell)),
                                                              std::to_string(cell.column + 1)})});
            break;
        }
        const int field = m_fieldOfColumn[static_cast<std::size_t>(cell.column)];
        if (field < 0)
            continue;
        const auto at = static_cast<std::size_t>(field);
        const Field &of = m_table->fields[at];
        m_cells[at] = &cell;
        m_null[at] = 0;
        if (of.type == FieldType::Text)
            continue;
        const std::string_view text = trimmed(cell.text);
        if (losesDigits(cell, text))
            problems.push_back({row.number, of.name, false,
                                contract::formatted("MESS_TAB_DIGITS_LOST", {quotation(text)})});
        if (cell.kind == Cell::Kind::Number && text.empty())
            m_numbers[at] = cell.number;
        else if (const auto number = parseNumber(text, of.mark))
            m_numbers[at] = *number;
        else if (const auto plain =
                     of.mark == DecimalMark::Comma ? parseNumber(text) : std::nullopt)
            m_numbers[at] = *plain;
        else {
            m_null[at] = 1;
            if (cell.kind != Cell::Kind::Error && !isMissingWord(text))
                problems.push_back({row.number, of.name, false,
                                    contract::formatted("MESS_TAB_LOST_VALUE", {quotation(text)})});
        }
    }
}

} // namespace vlt::driver
