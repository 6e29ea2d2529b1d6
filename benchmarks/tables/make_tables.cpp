// Writes generated tables: make_tables csv|xlsx|xml FILE ROWS [SHAPE]
#include "TableWriters.h"

#include <cstdio>
#include <cstdlib>
#include <exception>

namespace {

using namespace vlt::benchmarks;

/// Rows without the header: all tables have the sites of ROWS rows of the last one.
std::int64_t rowsOf(const TableShape &table, const TableShape &last, std::int64_t rows)
{
    const std::int64_t sites = (rows + last.rowsPerSite - 1) / last.rowsPerSite;
    return &table == &last ? rows : sites * table.rowsPerSite;
}

/// False if the format cannot hold the tables.
bool writeTables(const std::string &format, const std::string &path, std::int64_t rows,
                 const std::vector<TableShape> &tables)
{
    std::vector<Sheet> sheets;
    for (const TableShape &table : tables)
        sheets.push_back(
            {table.sheet, table.header.size(), rowsOf(table, tables.back(), rows) + 1});
    const std::unique_ptr<TableWriter> writer = makeTableWriter(format, path, sheets);
    if (!writer)
        return false;
    for (const TableShape &table : tables) {
        writer->beginSheet();
        writer->addRow(table.header);
        for (std::int64_t number = 1; number <= rowsOf(table, tables.back(), rows); ++number)
            writer->addRow(table.row(number));
    }
    writer->finish();
    return true;
}

} // namespace

int main(int count, char **values)
{
    try {
        const std::int64_t rows = count >= 4 && count <= 5 ? std::atoll(values[3]) : 0;
        const std::vector<TableShape> tables = tablesOfShape(count == 5 ? values[4] : "wide");
        if (rows < 1 || tables.empty() || !writeTables(values[1], values[2], rows, tables)) {
            std::fputs("usage: make_tables csv|xlsx|xml FILE ROWS [SHAPE]\n"
                       "  SHAPE  wide, tall, sites, cells; joined (xlsx only)\n",
                       stderr);
            return 2;
        }
    } catch (const std::exception &error) {
        std::fprintf(stderr, "make_tables: %s\n", error.what());
        return 1;
    }
    return 0;
}
