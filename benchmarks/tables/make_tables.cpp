// Writes a generated site table: make_tables csv|xlsx|xml FILE ROWS
#include "TableWriters.h"

#include <cstdio>
#include <cstdlib>
#include <exception>

int main(int count, char **values)
{
    using namespace vlt::benchmarks;
    try {
        const std::int64_t rows = count == 4 ? std::atoll(values[3]) : 0;
        const std::unique_ptr<TableWriter> writer =
            rows > 0 ? makeTableWriter(values[1], values[2], rows + 1) : nullptr;
        if (!writer) {
            std::fputs("usage: make_tables csv|xlsx|xml FILE ROWS\n", stderr);
            return 2;
        }
        writer->addRow(siteHeader());
        for (std::int64_t number = 1; number <= rows; ++number)
            writer->addRow(siteRow(number));
        writer->finish();
    } catch (const std::exception &error) {
        std::fprintf(stderr, "make_tables: %s\n", error.what());
        return 1;
    }
    return 0;
}
