#include "plugins/tables/cells/GroupedNumber.h"

#include "plugins/tables/cells/Numbers.h"

#include <algorithm>
#include <array>
#include <string>

namespace vlt::driver {

namespace {

constexpr std::size_t GroupDigits = 3;

/// Marks between groups: a blank, no-break space, narrow no-break space, thin space, apostrophes,
/// and the decimal marks of other countries.
constexpr std::array<std::string_view, 8> GroupMarks = {
    " ", "\xC2\xA0", "\xE2\x80\xAF", "\xE2\x80\x89", "'", "\xE2\x80\x99", ".", ","};

bool isDecimalMark(std::string_view mark)
{
    return mark == "." || mark == ",";
}

std::size_t digitsAt(std::string_view text, std::size_t at)
{
    const std::string_view rest = text.substr(std::min(at, text.size()));
    return std::min(rest.find_first_not_of("0123456789"), rest.size());
}

std::string_view groupMarkAt(std::string_view text)
{
    const auto found =
        std::find_if(GroupMarks.begin(), GroupMarks.end(),
                     [text](std::string_view mark) { return text.starts_with(mark); });
    return found == GroupMarks.end() ? std::string_view() : *found;
}

} // namespace

std::optional<GroupedNumber> leadingGroupedNumber(std::string_view text)
{
    std::size_t at = text.starts_with('-') || text.starts_with('+') ? 1 : 0;
    const std::size_t first = digitsAt(text, at);
    if (first == 0 || first > GroupDigits || text[at] == '0')
        return std::nullopt;
    at += first;
    std::string plain(text.substr(0, at));
    const std::string_view mark = groupMarkAt(text.substr(at));
    const auto groupFollows = [&] { return !mark.empty() && text.substr(at).starts_with(mark); };
    std::size_t groups = 0;
    for (; groupFollows() && digitsAt(text, at + mark.size()) == GroupDigits; ++groups) {
        plain += text.substr(at + mark.size(), GroupDigits);
        at += mark.size() + GroupDigits;
    }
    const std::size_t fraction =
        at < text.size() && isDecimalMark(text.substr(at, 1)) && text.substr(at, 1) != mark
            ? digitsAt(text, at + 1)
            : 0;
    const bool isAmbiguous = isDecimalMark(mark) && groups == 1;
    const bool hasPartGroup = groupFollows() && digitsAt(text, at + mark.size()) > 0;
    if (groups == 0 || (fraction == 0 && (isAmbiguous || hasPartGroup)))
        return std::nullopt;
    if (fraction > 0) {
        plain += '.';
        plain += text.substr(at + 1, fraction);
        at += 1 + fraction;
    }
    const auto number = parseNumber(plain);
    return number ? std::optional(GroupedNumber{*number, at, fraction == 0}) : std::nullopt;
}

std::optional<double> parseGroupedNumber(std::string_view text)
{
    const auto grouped = leadingGroupedNumber(text);
    return grouped && grouped->size == text.size() ? std::optional(grouped->number) : std::nullopt;
}

} // namespace vlt::driver
