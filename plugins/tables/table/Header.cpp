#include "table/Header.h"

#include "cells/Numbers.h"
#include "table/HeaderWords.h"

#include <algorithm>
#include <set>

namespace vlt::tables {

namespace {

constexpr int RowsLookedAt = 50;
constexpr int FewestWords = 2;
constexpr int NumbersPerHeader = 5; ///< at most one cell in so many may be a number, such as a year

/// A header cell on one line.
std::string nameOf(const Cell &cell)
{
    const std::string text = cellText(cell);
    std::string name;
    for (const char c : trimmed(text))
        if (c != '\n' && c != '\r')
            name += c;
        else if (!name.empty() && name.back() != ' ')
            name += ' ';
    return name;
}

bool isValue(const Cell &cell)
{
    return cell.kind != Cell::Kind::Text || numberShape(trimmed(cell.text)).isNumber;
}

} // namespace

std::optional<Header> findHeader(const Sheet &sheet, TableKind kind, size_t &widest)
{
    std::optional<Header> best;
    std::optional<Header> firstWide; ///< the first row with two cells or more
    bool firstWideIsText = false;
    std::vector<std::string> titles;
    const std::unique_ptr<RowReader> rows = sheet.rows();
    Row row;
    for (int seen = 0; seen < RowsLookedAt && rows->advance();) {
        if (!rows->hasContent(MostColumns))
            continue;
        ++seen;
        rows->cells(row);
        Header header;
        header.row = row.number;
        header.fingerprint = rows->fingerprint();
        header.titles = titles;
        header.faults = row.faults;
        int values = 0;
        std::set<std::string> tableNames;
        for (const Cell &cell : row.cells) {
            header.names.emplace(cell.column, nameOf(cell));
            values += isValue(cell) ? 1 : 0;
            if (!isValue(cell) && isTableWord(cell.text, kind))
                tableNames.insert(lowerCase(trimmed(cell.text)));
            if (titles.size() < static_cast<size_t>(RowsLookedAt) * 8)
                titles.push_back(cellText(cell));
        }
        header.wordCount = static_cast<int>(tableNames.size());
        widest = std::max(widest, row.cells.size());
        if (best)
            best->hasRowsBelow = true;
        if (firstWide)
            firstWide->hasRowsBelow = true;
        const bool wordy = header.wordCount >= FewestWords &&
                           values * NumbersPerHeader <= static_cast<int>(row.cells.size());
        if (!firstWide && row.cells.size() >= 2) {
            firstWide = header;
            firstWideIsText = values == 0;
        }
        if (wordy && (!best || header.wordCount > best->wordCount))
            best = std::move(header);
    }
    if (best)
        return best;
    return firstWideIsText ? firstWide : std::nullopt;
}

bool repeatsHeader(const Row &row, const Header &header)
{
    return row.cells.size() == header.names.size() &&
           std::all_of(row.cells.begin(), row.cells.end(), [&header](const Cell &cell) {
               const auto name = header.names.find(cell.column);
               return name != header.names.end() && name->second == nameOf(cell);
           });
}

} // namespace vlt::tables
