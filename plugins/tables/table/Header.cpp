#include "plugins/tables/table/Header.h"

#include "contract/TableTexts.h"
#include "plugins/tables/cells/Numbers.h"
#include "plugins/tables/roles/NameMatch.h"
#include "plugins/tables/table/HeaderWords.h"

#include <algorithm>
#include <set>

namespace vlt::driver {

namespace {

constexpr int RowsLookedAt = 50;
constexpr int MinWords = 2;
constexpr int MinStrength = 45;     ///< of a name; a sentence has less
constexpr int NumbersPerHeader = 5; ///< at most one cell in five may be a number, such as a year
constexpr std::size_t MaxNameSize = 256; ///< characters
constexpr std::size_t MaxTitleSize = 1000;

/// The first characters of a cell's text.
std::string startOf(const Cell &cell, std::size_t characters)
{
    Cell start = cell;
    start.text = firstCharacters(trimmed(cell.text), characters);
    return cellText(start);
}

/// The text of a header cell on one line, cut if too long.
std::string nameOf(const Cell &cell)
{
    std::string name;
    for (const char c : startOf(cell, MaxNameSize)) {
        if (c != '\n' && c != '\r')
            name += c;
        else if (!name.empty() && name.back() != ' ')
            name += ' ';
    }
    return name;
}

/// The faults in the row of the header.
std::vector<CellFault> faultsOf(const Row &row)
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

/// Whether tables of that kind have columns with such a name.
bool isTableName(const std::string &name, contract::TableKind kind, const Vocabulary &vocabulary)
{
    constexpr std::size_t MaxSize = 100; // bytes; longer texts are sentences
    const bool isLetter = name.size() == 1 && name.find_first_of("xyXY") == std::string::npos;
    if (name.size() > MaxSize || isLetter)
        return false;
    const std::vector<std::string> words = separatedWords(name, vocabulary);
    const std::vector<NameMatch> matches = matchName(words, vocabulary);
    const auto isOfKind = [kind](const NameMatch &match) {
        return match.strength >= MinStrength &&
               (kind == contract::TableKind::Links || match.role < Role::LinkName);
    };
    return std::any_of(matches.begin(), matches.end(), isOfKind) ||
           std::any_of(words.begin(), words.end(), [&vocabulary](const std::string &word) {
               const WordMeaning *meaning = vocabulary.find(word);
               return meaning && meaning->isSector && word.size() > 1;
           });
}

bool isValue(const Cell &cell)
{
    return cell.kind != Cell::Kind::Text || numberShape(trimmed(cell.text)).isNumber;
}

} // namespace

std::optional<Header> findHeader(const Sheet &sheet, contract::TableKind kind,
                                 const Vocabulary &vocabulary, std::size_t &widest)
{
    std::optional<Header> best;
    std::optional<Header> firstWide; ///< the first row with at least two cells
    bool firstWideIsText = false;
    std::vector<std::string> titles;
    const std::unique_ptr<RowReader> rows = sheet.rows();
    Row row;
    for (int seen = 0; seen < RowsLookedAt && rows->advance();) {
        if (!rows->hasContent(MaxColumns))
            continue;
        ++seen;
        rows->cells(row);
        Header header;
        header.row = row.number;
        header.fingerprint = rows->fingerprint();
        header.titles = titles;
        int values = 0;
        std::set<std::string> tableNames;
        for (const Cell &cell : row.cells) {
            const std::string &name = header.names.emplace(cell.column, nameOf(cell)).first->second;
            values += isValue(cell) ? 1 : 0;
            if (!isValue(cell) && isTableName(name, kind, vocabulary))
                tableNames.insert(lowerCase(name));
            if (titles.size() < static_cast<std::size_t>(RowsLookedAt) * 8)
                titles.push_back(startOf(cell, MaxTitleSize));
        }
        header.wordCount = static_cast<int>(tableNames.size());
        widest = std::max(widest, row.cells.size());
        if (best)
            best->hasRowsBelow = true;
        if (firstWide)
            firstWide->hasRowsBelow = true;
        const bool wordy = header.wordCount >= MinWords &&
                           values * NumbersPerHeader <= static_cast<int>(row.cells.size());
        const bool better = wordy && (!best || header.wordCount > best->wordCount);
        if (better || (!firstWide && row.cells.size() >= 2))
            header.faults = faultsOf(row);
        if (!firstWide && row.cells.size() >= 2) {
            firstWide = header;
            firstWideIsText = values == 0;
        }
        if (better)
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

} // namespace vlt::driver
