#include "plugins/tables/table/FirstRows.h"

#include "contract/TableTexts.h"
#include "plugins/tables/cells/Numbers.h"
#include "plugins/tables/roles/NameWords.h"
#include "plugins/tables/table/ColumnStatistics.h"
#include "plugins/tables/table/SitesByValues.h"

#include <algorithm>
#include <cmath>

namespace vlt::driver {

namespace {

constexpr std::size_t MaxColumnsKept = 128; ///< a wider table needs a header
constexpr std::size_t MinRows = 2;          ///< a single one shows too little

/// The name of a column with a role: "Site ID" for siteId, "Latitude Degrees" for latDegrees.
std::string columnName(const std::string &role)
{
    static const std::map<std::string, std::string> Written = {
        {"Id", "ID"}, {"Lat", "Latitude"}, {"Lon", "Longitude"}, {"Pair", "Coordinates"}};
    std::string name;
    std::string word;
    const auto endWord = [&] {
        const auto written = Written.find(word);
        name += (name.empty() || word.empty() ? "" : " ") +
                (written == Written.end() ? word : written->second);
        word.clear();
    };
    for (const char c : role) {
        if (c >= 'A' && c <= 'Z')
            endWord();
        const bool isFirst = word.empty() && c >= 'a' && c <= 'z';
        word += isFirst ? static_cast<char>(c - 'a' + 'A') : c;
    }
    endWord();
    return name;
}

/// The columns that are known, as text: "1 Site ID, 3 Longitude".
std::string listOf(const std::map<int, std::string> &names)
{
    std::string list;
    for (const auto &[column, name] : names) {
        if (!name.empty())
            list += (list.empty() ? "" : ", ") + std::to_string(column + 1) + ' ' + name;
    }
    return list;
}

bool passes(const std::string &text, const ValueTest &test)
{
    if (!test.words.empty())
        return test.words.contains(folded(text));
    const std::optional<double> number = parseEitherNumber(text);
    return number && (!test.minimum || *number >= *test.minimum) &&
           (!test.maximum || *number <= *test.maximum) &&
           (!test.isWhole || std::floor(*number) == *number);
}

/// Whether nearly all values of a column are there, and each passes the test.
bool allPass(const std::vector<std::string> &values, const ValueTest &test,
             const Vocabulary &vocabulary)
{
    std::size_t filled = 0;
    for (const std::string &value : values) {
        if (value.empty() || vocabulary.isMissing(value))
            continue;
        if (!passes(value, test))
            return false;
        ++filled;
    }
    return filled * 10 >= values.size() * 9;
}

} // namespace

void FirstRows::add(const Row &row)
{
    for (const Cell &cell : row.cells) {
        m_lastColumn = std::max(m_lastColumn, cell.column);
        const auto column = static_cast<std::size_t>(cell.column);
        if (column >= MaxColumnsKept)
            continue;
        if (column >= m_columns.size())
            m_columns.resize(column + 1);
        m_columns[column].resize(m_rowCount);
        m_columns[column].push_back(sampleText(cell));
    }
    ++m_rowCount;
    for (std::vector<std::string> &column : m_columns)
        column.resize(m_rowCount);
}

std::optional<ColumnsByValues> FirstRows::columnsOfKnownTable(contract::TableKind kind,
                                                              const Vocabulary &vocabulary) const
{
    const bool holdsLinks = kind == contract::TableKind::Links;
    const auto isThis = [&](const KnownTable &table) {
        return table.holdsLinks == holdsLinks && m_rowCount >= MinRows &&
               static_cast<std::size_t>(m_lastColumn) < table.columns.size() &&
               std::all_of(table.tests.begin(), table.tests.end(), [&](const auto &test) {
                   return test.first < m_columns.size() &&
                          allPass(m_columns[test.first], test.second, vocabulary);
               });
    };
    const auto &tables = vocabulary.knownTables();
    const auto found = std::find_if(tables.rbegin(), tables.rend(), isThis);
    if (found == tables.rend())
        return std::nullopt;
    ColumnsByValues columns;
    for (std::size_t i = 0; i < found->columns.size(); ++i)
        columns.names[static_cast<int>(i)] = columnName(found->columns[i]);
    columns.evidence =
        contract::formatted("MESS_TAB_KNOWN_TABLE", {found->name, listOf(columns.names)});
    return columns;
}

std::optional<ColumnsByValues> FirstRows::columnsOfSites(const Vocabulary &vocabulary) const
{
    if (m_lastColumn >= static_cast<int>(MaxColumnsKept))
        return std::nullopt;
    ColumnsByValues columns;
    columns.names = siteColumnsByValues(m_columns, vocabulary);
    if (columns.names.empty())
        return std::nullopt;
    columns.evidence = contract::formatted("MESS_TAB_COLUMNS_BY_VALUES", {listOf(columns.names)});
    return columns;
}

} // namespace vlt::driver
