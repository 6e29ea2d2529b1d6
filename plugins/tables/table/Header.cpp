#include "plugins/tables/table/Header.h"

#include "plugins/tables/roles/NameMatch.h"
#include "plugins/tables/table/FirstRows.h"
#include "plugins/tables/table/HeaderBlock.h"
#include "plugins/tables/table/HeaderWords.h"

#include <algorithm>
#include <set>

namespace vlt::driver {

namespace {

using contract::TableKind;

constexpr std::size_t RowsRead = 50;
constexpr int MinWords = 2;
constexpr int MinStrength = 45; ///< of a name; a sentence has less
/// At most one cell in so many may be a number, such as a year.
constexpr std::size_t CellsPerNumber = 5;
constexpr std::size_t MaxTitleSize = 1000;
constexpr std::size_t MaxTitles = RowsRead * 8;

/// Whether tables of that kind have columns with such a name.
bool isTableName(const std::string &name, TableKind kind, const Vocabulary &vocabulary)
{
    constexpr std::size_t MaxSize = 100; // bytes; longer texts are sentences
    const bool isLetter = name.size() == 1 && name.find_first_of("xyXY") == std::string::npos;
    if (name.size() > MaxSize || isLetter)
        return false;
    const std::vector<std::string> words = separatedWords(name, vocabulary);
    const std::vector<NameMatch> matches = matchName(words, vocabulary);
    const auto isOfKind = [kind](const NameMatch &match) {
        return match.strength >= MinStrength &&
               (kind == TableKind::Links || match.role < Role::LinkName);
    };
    return std::any_of(matches.begin(), matches.end(), isOfKind) ||
           std::any_of(words.begin(), words.end(), [&vocabulary](const std::string &word) {
               const WordMeaning *meaning = vocabulary.find(word);
               return meaning && meaning->isSector && word.size() > 1;
           });
}

/// The number of different names that tables of that kind have.
int countTableNames(const HeaderRow &row, TableKind kind, const Vocabulary &vocabulary)
{
    std::set<std::string> names;
    for (const auto &[column, text] : row.texts) {
        if (!row.values.contains(column) && isTableName(text, kind, vocabulary))
            names.insert(lowerCase(text));
    }
    return static_cast<int>(names.size());
}

void addTitles(const Row &row, std::vector<std::string> &titles)
{
    for (const Cell &cell : row.cells) {
        if (titles.size() < MaxTitles)
            titles.push_back(startOfText(cell, MaxTitleSize));
    }
}

/// A header with the names and units of a block.
///
/// @param below  the first rows behind the one with the names
Header headerOf(HeaderBlock block, const std::vector<HeaderRow> &below)
{
    Header header;
    header.names = std::move(block.names);
    header.rows = std::move(block.rows);
    header.furtherRows = std::move(block.furtherRows);
    header.units = std::move(block.units);
    header.hasRowsBelow =
        std::any_of(below.begin(), below.end(),
                    [last = header.lastRow()](const HeaderRow &row) { return row.number > last; });
    return header;
}

/// The header in the rows with these numbers; nothing if one of them is empty.
std::optional<Header> headerIn(const Sheet &sheet, const HeaderRowNumbers &numbers,
                               const Vocabulary &vocabulary, std::size_t &widest)
{
    std::vector<HeaderRow> named;
    std::vector<HeaderRow> below;
    std::vector<std::string> titles;
    std::vector<CellFault> faults;
    const std::unique_ptr<RowReader> rows = sheet.rows();
    Row row;
    while (below.size() < RowsBelowNames && rows->advance()) {
        if (!rows->hasContent(MaxColumns))
            continue;
        rows->cells(row);
        widest = std::max(widest, row.cells.size());
        if (std::binary_search(numbers.begin(), numbers.end(), row.number)) {
            named.push_back(readHeaderRow(row, rows->fingerprint()));
            faults = headerFaults(row);
        } else if (row.number > numbers.back())
            below.push_back(readHeaderRow(row, rows->fingerprint()));
        else if (named.empty())
            addTitles(row, titles);
    }
    if (named.size() < numbers.size())
        return std::nullopt;
    Header header = headerOf(joinRows(std::move(named), below, vocabulary), below);
    header.row = numbers.back();
    header.titles = std::move(titles);
    header.wordCount = MinWords;
    header.faults = std::move(faults);
    return header;
}

/// The first rows of a sheet, of which one is the header.
class HeaderSearch
{
public:
    HeaderSearch(TableKind kind, const Vocabulary &vocabulary)
        : m_kind(kind)
        , m_vocabulary(vocabulary)
    {}

    void add(const Row &row, uint64_t fingerprint)
    {
        m_firstRows.add(row);
        if (!row.cells.empty())
            m_lastColumn = std::max(m_lastColumn, row.cells.back().column);
        const HeaderRow read = readHeaderRow(row, fingerprint);
        for (std::optional<Candidate> *candidate : {&m_best, &m_firstWide}) {
            if (*candidate && (*candidate)->below.size() < RowsBelowNames)
                (*candidate)->below.push_back(read);
        }
        const int wordCount = countTableNames(read, m_kind, m_vocabulary);
        const bool isWordy =
            wordCount >= MinWords && read.values.size() * CellsPerNumber <= read.texts.size();
        const auto candidate = [&] {
            return Candidate{m_above, read, {}, wordCount, headerFaults(row), m_titles.size()};
        };
        if (isWordy && (!m_best || wordCount > m_best->wordCount))
            m_best = candidate();
        if (!m_firstWide && row.cells.size() >= 2)
            m_firstWide = candidate();
        addTitles(row);
        m_above.push_back(read);
        if (m_above.size() >= MaxNameRows)
            m_above.erase(m_above.begin());
    }

    /// The header of a table without names.
    Header withoutNames() const
    {
        if (auto known = m_firstRows.columnsOfKnownTable(m_kind, m_vocabulary))
            return headerless(std::move(*known));
        if (m_kind == TableKind::Sites) {
            if (auto sites = m_firstRows.columnsOfSites(m_vocabulary))
                return headerless(std::move(*sites));
        }
        ColumnsByValues columns;
        for (int column = 0; column <= m_lastColumn; ++column)
            columns.names[column].clear();
        return headerless(std::move(columns));
    }

    std::optional<Header> header()
    {
        if (auto known = m_firstRows.columnsOfKnownTable(m_kind, m_vocabulary))
            return headerless(std::move(*known));
        if (m_kind == TableKind::Sites && !m_best) {
            if (auto sites = m_firstRows.columnsOfSites(m_vocabulary))
                return headerless(std::move(*sites));
        }
        const bool isNamed = m_best || (m_firstWide && m_firstWide->row.values.empty());
        if (!isNamed)
            return std::nullopt;
        Candidate &found = m_best ? *m_best : *m_firstWide;
        HeaderBlock block = joinHeader(found.above, found.row, found.below, m_vocabulary);
        Header header = headerOf(std::move(block), found.below);
        header.row = found.row.number;
        m_titles.resize(found.titleCount);
        header.titles = std::move(m_titles);
        header.wordCount = found.wordCount;
        header.faults = std::move(found.faults);
        return header;
    }

private:
    struct Candidate
    {
        std::vector<HeaderRow> above; ///< the last ones before the row
        HeaderRow row;
        std::vector<HeaderRow> below; ///< the first ones behind it
        int wordCount = 0;
        std::vector<CellFault> faults;
        std::size_t titleCount = 0; ///< titles in the rows above
    };

    static Header headerless(ColumnsByValues columns)
    {
        Header header;
        header.names = std::move(columns.names);
        header.wordCount = MinWords;
        header.absence = std::move(columns.evidence);
        header.hasRowsBelow = true;
        return header;
    }

    void addTitles(const Row &row) { vlt::driver::addTitles(row, m_titles); }

    TableKind m_kind;
    const Vocabulary &m_vocabulary;
    std::optional<Candidate> m_best;
    std::optional<Candidate> m_firstWide; ///< the first row with at least two cells
    std::vector<std::string> m_titles;
    FirstRows m_firstRows;
    int m_lastColumn = 0;
    std::vector<HeaderRow> m_above; ///< the last rows before the next one
};

} // namespace

std::optional<Header> findHeader(const Sheet &sheet, TableKind kind, const Vocabulary &vocabulary,
                                 const std::optional<HeaderRowNumbers> &stated, std::size_t &widest)
{
    if (stated && !stated->empty()) {
        if (auto header = headerIn(sheet, *stated, vocabulary, widest))
            return header;
    }
    HeaderSearch search(kind, vocabulary);
    const std::unique_ptr<RowReader> rows = sheet.rows();
    Row row;
    for (std::size_t seen = 0; seen < RowsRead && rows->advance();) {
        if (!rows->hasContent(MaxColumns))
            continue;
        ++seen;
        rows->cells(row);
        widest = std::max(widest, row.cells.size());
        search.add(row, rows->fingerprint());
    }
    return stated && stated->empty() ? search.withoutNames() : search.header();
}

} // namespace vlt::driver
