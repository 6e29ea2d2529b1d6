#include "plugins/tables/table/TotalRow.h"

#include "plugins/tables/cells/Numbers.h"

#include <algorithm>

namespace vlt::driver {

namespace {

constexpr std::size_t MaxLabelSize = 60; ///< bytes

/// How a row begins.
enum class Label { Other, BeginsWithTotal, Total };

Label labelOf(const Cell &cell, const Vocabulary &vocabulary)
{
    const std::string_view text = trimmed(cell.text);
    if (cell.kind != Cell::Kind::Text || text.size() > MaxLabelSize)
        return Label::Other;
    const std::string_view beforeColon = trimmed(text.substr(0, text.find(':')));
    if (vocabulary.isTotal(text) || vocabulary.isTotal(beforeColon))
        return Label::Total;
    const std::string_view firstWord = text.substr(0, text.find(' '));
    return vocabulary.isTotal(firstWord) ? Label::BeginsWithTotal : Label::Other;
}

bool holdsDigit(std::string_view text)
{
    return text.find_first_of("0123456789") != std::string_view::npos;
}

/// Whether a cell holds a number, or a count with its noun: "12 sites".
bool isNumber(const Cell &cell)
{
    const std::string_view text = trimmed(cell.text);
    return cell.kind == Cell::Kind::Number ||
           (cell.kind == Cell::Kind::Text &&
            (numberShape(text).isNumber || holdsDigit(text.substr(0, 1))));
}

} // namespace

bool isTotalRow(const Row &row, const std::vector<ColumnStatistics> &columns, std::size_t rowCount,
                const Vocabulary &vocabulary)
{
    if (row.cells.empty() || rowCount == 0)
        return false;
    const Label label = labelOf(row.cells.front(), vocabulary);
    const bool hasNumber = row.cells.size() > 1 || holdsDigit(row.cells.front().text);
    if (label == Label::Other || !hasNumber ||
        !std::all_of(std::next(row.cells.begin()), row.cells.end(), isNumber))
        return false;
    std::size_t common = 0; // columns that nearly every row fills
    std::size_t filled = 0; // those of them that this row fills
    auto cell = row.cells.begin();
    for (std::size_t column = 0; column < columns.size(); ++column) {
        while (cell != row.cells.end() && static_cast<std::size_t>(cell->column) < column)
            ++cell;
        if (columns[column].filled() * 10 < rowCount * 9)
            continue;
        ++common;
        filled += cell != row.cells.end() && static_cast<std::size_t>(cell->column) == column;
    }
    return label == Label::Total ? filled < common : filled * 2 <= common;
}

} // namespace vlt::driver
