#include "plugins/tables/ogr/TableExcerpt.h"

#include "contract/TableMetadata.h"

#include <nlohmann/json.hpp>

#include <algorithm>

namespace vlt::driver {

namespace {

using Json = nlohmann::json;
namespace excerpt = contract::metadata::excerpt;

constexpr int64_t MinRowsBelowHeader = 12;
constexpr int64_t MaxHeaderRow = 40; ///< a header further below is not shown
constexpr std::size_t MaxCells = 20000;
constexpr std::size_t MaxCharacters = 80;

Json numbersOf(const std::vector<HeaderRow> &rows)
{
    Json numbers = Json::array();
    for (const HeaderRow &row : rows)
        numbers.push_back(row.number);
    return numbers;
}

Json columnsOf(const TableProfile &table)
{
    Json columns = Json::array();
    for (const Field &field : table.fields)
        columns.push_back({{excerpt::Name, field.name}, {excerpt::Position, field.column}});
    return columns;
}

Json rowsOf(const Sheet &sheet, const TableProfile &table)
{
    Json rows = Json::array();
    const int64_t lastRow = std::min(table.header.lastRow(), MaxHeaderRow) + MinRowsBelowHeader;
    std::size_t cellCount = 0;
    Row row;
    const std::unique_ptr<RowReader> reader = sheet.rows();
    while (cellCount < MaxCells && reader->advance() && reader->rowNumber() <= lastRow) {
        reader->cells(row);
        Json texts = Json::array();
        for (const Cell &cell : row.cells) {
            if (cell.column > table.lastColumn)
                break;
            while (texts.size() < static_cast<std::size_t>(cell.column))
                texts.push_back("");
            texts.push_back(startOfText(cell, MaxCharacters));
        }
        cellCount += texts.size();
        rows.push_back({{excerpt::Row, reader->rowNumber()}, {excerpt::Cells, std::move(texts)}});
    }
    return rows;
}

} // namespace

std::string tableExcerpt(const TableFile &file)
{
    const TableProfile &table = file.facts().table;
    Json sheets = Json::array();
    Json rows;
    const std::unique_ptr<Workbook> workbook = file.openFile();
    while (const std::shared_ptr<Sheet> sheet = workbook->nextSheet()) {
        if (!sheet->hidden() || sheet->name() == table.sheet)
            sheets.push_back(sheet->name());
        if (sheet->name() != table.sheet || !rows.is_null())
            continue;
        sheet->prepareStrings(MaxHeaderRow + MinRowsBelowHeader);
        rows = rowsOf(*sheet, table);
    }
    Json object = {{excerpt::HeaderRows, numbersOf(table.header.rows)},
                   {excerpt::FurtherRows, numbersOf(table.header.furtherRows)},
                   {excerpt::Columns, columnsOf(table)},
                   {excerpt::Rows, std::move(rows)}};
    if (table.encoding.name.empty()) { // a text file has no sheets
        object[excerpt::Sheet] = table.sheet;
        object[excerpt::Sheets] = std::move(sheets);
    }
    return object.dump(-1, ' ', false, Json::error_handler_t::replace);
}

} // namespace vlt::driver
