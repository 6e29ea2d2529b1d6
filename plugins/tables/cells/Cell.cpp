#include "plugins/tables/cells/Cell.h"

#include "contract/TableTexts.h"
#include "plugins/tables/cells/Numbers.h"

#include <algorithm>

namespace vlt::driver {

namespace {

constexpr std::string_view Blanks(" \t\r\n\v\f\0", 7);
constexpr std::size_t ShortText = 256; ///< characters that a cell keeps beyond the limit of the row
constexpr std::string_view NoBreakSpace = "\xC2\xA0";

} // namespace

void Row::addMissingText(int column, std::string_view textNumber)
{
    constexpr std::size_t MaxNumberSize = 20;
    faults.push_back({column, contract::formatted("MESS_TAB_MISSING_TEXT",
                                                  {textNumber.substr(0, MaxNumberSize)})});
}

void Row::addRepaired(Cell cell)
{
    m_textSize -= cell.text.size();
    // The part that is cut off is not read: thousands of cells may refer to one text of megabytes.
    const std::string_view whole = cell.text.size() > MaxTextSize ? trimmed(cell.text) : cell.text;
    cell.text = firstCharacters(whole, MaxTextSize);
    const bool isTooLong = cell.text.size() < whole.size();
    if (cell.text.find('\0') != std::string_view::npos) {
        // Zero bytes at the ends are padding. Inside, many programs would take them for the end.
        if (trimmed(cell.text).find('\0') != std::string_view::npos)
            faults.push_back({cell.column, contract::formatted("MESS_TAB_ZEROS")});
        std::string plain(cell.text);
        std::erase(plain, '\0');
        cell.text = keep(std::move(plain));
    }
    const std::size_t room =
        std::clamp(MaxRowTextSize - std::min(m_textSize, MaxRowTextSize), ShortText, MaxTextSize);
    const std::string_view first = firstCharacters(cell.text, room);
    if (isTooLong || first.size() < cell.text.size()) {
        const auto isStart = [](char c) { return (c & 0xC0) != 0x80; };
        const auto count = std::count_if(first.begin(), first.end(), isStart);
        faults.push_back(
            {cell.column, contract::formatted("MESS_TAB_TEXT_CUT", {std::to_string(count)})});
        cell.text = first;
    }
    m_textSize += cell.text.size();
    if (!trimmed(cell.text).empty() || cell.kind == Cell::Kind::Number)
        cells.push_back(cell);
}

std::string_view firstCharacters(std::string_view text, std::size_t count)
{
    if (text.size() <= count)
        return text;
    std::size_t at = 0;
    for (; at < text.size(); ++at) {
        if ((text[at] & 0xC0) != 0x80 && count-- == 0)
            break;
    }
    return text.substr(0, at);
}

std::string_view trimmedSlowly(std::string_view text)
{
    for (;;) {
        const std::size_t first = text.find_first_not_of(Blanks);
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
    if (isOverlong(cell)) {
        if (const auto number = parseNumber(trimmed(cell.text)))
            return numberText(*number);
    }
    return std::string(cell.text);
}

} // namespace vlt::driver
