#include "plugins/tables/table/DelimitedLine.h"

#include <algorithm>

namespace vlt::driver {

namespace {

void appendQuoted(std::string &line, std::string_view text)
{
    line += '"';
    for (const char c : text)
        line.append(c == '"' ? 2 : 1, c);
    line += '"';
}

} // namespace

std::string delimitedLine(const Row &row, char delimiter, int lastColumn)
{
    const std::string special = {'\n', '\r', delimiter};
    std::string line;
    int column = 0;
    const auto goTo = [&](int to) {
        if (to > column)
            line.append(static_cast<std::size_t>(to - column), delimiter);
        column = std::max(column, to);
    };
    for (const Cell &cell : row.cells) {
        goTo(cell.column);
        const std::string text = cellText(cell);
        // a mark inside a text, as of inches, needs no quotation
        if (text.starts_with('"') || text.find_first_of(special) != std::string::npos)
            appendQuoted(line, text);
        else
            line += text;
    }
    goTo(lastColumn);
    return line;
}

} // namespace vlt::driver
