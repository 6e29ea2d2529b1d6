#include "cells/Cell.h"

#include "cells/Numbers.h"
#include "tabletexts/TextPatterns.h"

namespace vlt::tables {

namespace {

constexpr std::string_view Blanks(" \t\r\n\v\f\0", 7);
constexpr std::string_view NoBreakSpace = "\xC2\xA0";

} // namespace

void Row::addMissingText(int column, std::string_view textNumber)
{
    constexpr size_t LongestNumber = 20;
    faults.push_back({column, tabletexts::formatted("MESS_TAB_MISSING_TEXT",
                                                    {textNumber.substr(0, LongestNumber)})});
}

std::string_view trimmedSlowly(std::string_view text)
{
    for (;;) {
        const size_t first = text.find_first_not_of(Blanks);
        if (first == std::string_view::npos)
            return {};
        text = text.substr(first, text.find_last_not_of(Blanks) - first + 1);
        if (text.starts_with(NoBreakSpace))
            text.remove_prefix(NoBreakSpace.size());
        else if (text.ends_with(NoBreakSpace))
            text.remove_suffix(NoBreakSpace.size());
        else
            return text;
    }
}

bool isOverlong(const Cell &cell)
{
    return cell.kind == Cell::Kind::Number && cell.text.size() > 16;
}

std::string cellText(const Cell &cell)
{
    if (cell.kind == Cell::Kind::Number && cell.text.empty())
        return numberText(cell.number);
    if (isOverlong(cell))
        if (const auto number = parseNumber(trimmed(cell.text)))
            return numberText(*number);
    return std::string(cell.text);
}

} // namespace vlt::tables
