#pragma once

#include "plugins/tables/cells/RowReader.h"
#include "plugins/tables/table/ColumnStatistics.h"
#include "plugins/tables/table/Header.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace vlt::driver {

/// One column of a table.
struct Field
{
    /// As in the header, without asterisks at the end. A number makes the name unique if it occurs
    /// more than once.
    std::string name;
    int column = 0;   ///< from 0
    std::string unit; ///< in the row of units below the header; empty for none
    FieldType type = FieldType::Text;
    DecimalMark mark = DecimalMark::Point;
    std::vector<std::string> samples; ///< texts of some of its cells
};

/// The name of a field with the unit below it, as one text.
std::string nameWithUnit(const Field &field);

/// Position of a row, which can be read from there without reading the rows before.
struct RowMark
{
    int64_t row = 0; ///< number in the file
    uint64_t position = 0;
};

/// The properties of a table without its rows. Opening an unchanged file again needs no more than
/// this, and it is small enough to be kept in memory.
struct TableProfile
{
    std::string sheet;
    TextEncoding encoding;
    Header header;
    std::vector<Field> fields;
    int lastColumn = 0; ///< the last column that is a field
    uint64_t rowCount = 0;
    bool allRowsSampled = true;
    std::vector<int64_t> leftOutRows; ///< numbers of rows below the header without data, ascending
    std::vector<int64_t> totalRows;   ///< those of them that hold sums
    uint64_t repeatedHeaders = 0;     ///< number of further rows that repeat one of the header
    uint64_t hiddenRows = 0;          ///< number of rows with data that office programs do not show
    int64_t firstHiddenRow = 0;       ///< number of the first of them in the file
    std::vector<RowMark> marks;       ///< every few thousand rows, ascending
    /// The texts of the cells of the first rows, by field and row; empty for empty cells.
    std::vector<std::vector<std::string>> sampledColumns;

    /// Number of rows below the header that hold something.
    uint64_t rowCountWithAll() const { return rowCount + leftOutRows.size() + repeatedHeaders; }
    /// The name of a field in the header, without the number that makes it unique.
    std::string nameInHeader(int field) const;
    /// That name without the groups above it: Azimuth for "Sector 1 Azimuth".
    std::string nameInGroup(int field) const;
    /// The name in the header with the unit below it, as one text.
    std::string nameWithUnit(int field) const;
};

/// What the caller states about the table; empty members are found automatically.
struct TableHints
{
    const Vocabulary *vocabulary = nullptr; ///< must not be null
    contract::TableKind kind = contract::TableKind::Sites;
    std::string sheet;
    bool textOnly = false; ///< all columns are texts
    /// How well the first rows of a sheet suit the wanted table: from 0 to `highestSuitability`.
    /// The best one of several sheets is chosen; without it, the first one with a header.
    std::function<int(const TableProfile &start)> suitability = {};
    int highestSuitability = 0;
    bool mustSuit = false;      ///< a sheet of suitability 0 is not read
    std::string otherThan = {}; ///< name of a sheet that is not considered
    std::optional<HeaderRowNumbers> headerRows = {};
};

/// A table: the sheet of a workbook, and its properties.
struct Table
{
    std::shared_ptr<Sheet> sheet;
    std::shared_ptr<const TableProfile> profile;
};

/// Finds the sheet that suits best and reads all its rows once. Throws RefusedFile (NoHeader,
/// OneColumn, Empty, BadOption).
Table readTable(Workbook &workbook, const TableHints &hints);

/// The properties of a sheet as far as its first rows, at most 200, show them.
std::shared_ptr<const TableProfile> readStart(const Sheet &sheet, const Header &header,
                                              const TableHints &hints);

/// The sheet of a profile, in a workbook that was opened again.
std::shared_ptr<Sheet> findSheet(Workbook &workbook, const std::string &name);

/// What a row of a sheet holds.
enum class RowKind {
    Nothing,
    Head, ///< titles, names of columns, units
    Data,
    RepeatedHeader,
    Total, ///< sums
};

/// The rows of a table that hold data: those below the header that are not empty, do not repeat it
/// and are no sums.
class DataRows
{
public:
    DataRows(const Sheet &sheet, std::shared_ptr<const TableProfile> profile);

    /// Goes to the next row of data; false after the last.
    bool advance();
    /// Goes to the next row that holds anything at all; Nothing after the last.
    RowKind advanceToAny();
    /// Number of the rows that repeat the header, among those that advance() has left out.
    uint64_t repeatedHeaders() const { return m_repeatedHeaders; }
    /// Goes to the row with that number, or else to the next one after it; false if there is none.
    bool seek(int64_t row);
    int64_t rowNumber() const { return m_rows->rowNumber(); }
    bool isHidden() const { return m_rows->isHidden(); }
    uint64_t position() const { return m_rows->position(); }
    /// See RowReader::leaveOutTexts().
    void leaveOutTexts(const std::vector<char> *columns)
    {
        m_leftOut = columns;
        m_rows->leaveOutTexts(columns);
    }
    /// The cells of the row, valid until the next row.
    const Row &cells();
    /// The cells with the texts of all columns.
    const Row &cellsWithTexts();
    /// See RowReader::size().
    std::size_t size() const { return m_rows->size(); }

private:
    RowKind readKind();

    const Sheet *m_sheet;
    std::shared_ptr<const TableProfile> m_profile;
    std::unique_ptr<RowReader> m_rows;
    const std::vector<char> *m_leftOut = nullptr;
    Row m_row;
    bool m_parsed = false;
    uint64_t m_repeatedHeaders = 0;
};

} // namespace vlt::driver
