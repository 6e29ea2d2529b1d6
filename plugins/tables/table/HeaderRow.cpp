#include "plugins/tables/table/HeaderRow.h"

#include "contract/TableTexts.h"
#include "plugins/tables/cells/Numbers.h"
#include "plugins/tables/roles/NameWords.h"

#include <algorithm>

namespace vlt::driver {

namespace {

constexpr std::size_t MaxNameSize = 256; ///< characters

/// The text of a header cell on one line, cut if too long.
std::string nameOf(const Cell &cell)
{
    std::string name;
    for (const char c : startOfText(cell, MaxNameSize)) {
        if (c != '\n' && c != '\r')
            name += c;
        else if (!name.empty() && name.back() != ' ')
            name += ' ';
    }
    return name;
}

/// Whether a degree sign follows a digit, as in a coordinate and unlike in "Azimuth (\u00B0)".
bool holdsDegrees(std::string_view text)
{
    const std::size_t sign = text.find("\u00B0");
    return sign != std::string_view::npos && sign > 0 && text[sign - 1] >= '0' &&
           text[sign - 1] <= '9';
}

bool isValue(const Cell &cell)
{
    const std::string_view text = trimmed(cell.text);
    return cell.kind != Cell::Kind::Text || numberShape(text).isNumber || holdsDegrees(text);
}

} // namespace

std::string startOfText(const Cell &cell, std::size_t characters)
{
    Cell start = cell;
    start.text = firstCharacters(trimmed(cell.text), characters);
    return cellText(start);
}

HeaderRow readHeaderRow(const Row &row, uint64_t fingerprint)
{
    HeaderRow header;
    header.number = row.number;
    header.fingerprint = fingerprint;
    for (const Cell &cell : row.cells) {
        header.texts.emplace(cell.column, nameOf(cell));
        if (isValue(cell))
            header.values.insert(cell.column);
    }
    return header;
}

std::vector<CellFault> headerFaults(const Row &row)
{
    std::vector<CellFault> faults;
    std::set<int> cutColumns;
    for (const Cell &cell : row.cells) {
        const std::string_view text = trimmed(cell.text);
        if (firstCharacters(text, MaxNameSize).size() == text.size())
            continue;
        cutColumns.insert(cell.column);
        faults.push_back(
            {cell.column, contract::formatted("MESS_TAB_TEXT_CUT", {std::to_string(MaxNameSize)})});
    }
    for (const CellFault &fault : row.faults) {
        if (!cutColumns.contains(fault.column)) // a text that is cut twice is reported once
            faults.push_back(fault);
    }
    return faults;
}

bool repeats(const Row &row, const HeaderRow &header)
{
    const std::size_t count = row.cells.size();
    if (count != header.texts.size() && (count < 2 || count * 2 < header.texts.size()))
        return false;
    return std::all_of(row.cells.begin(), row.cells.end(), [&header](const Cell &cell) {
        const auto name = header.texts.find(cell.column);
        if (name == header.texts.end())
            return false;
        const std::string text = nameOf(cell);
        return name->second == text || folded(name->second) == folded(text);
    });
}

} // namespace vlt::driver
