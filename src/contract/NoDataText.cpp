#include "contract/NoDataText.h"

#include <algorithm>
#include <charconv>
#include <string>

namespace vlt::contract {

namespace {

std::string_view trimmed(std::string_view text)
{
    constexpr std::string_view Blanks = " \t";
    text.remove_prefix(std::min(text.find_first_not_of(Blanks), text.size()));
    return text.substr(0, text.find_last_not_of(Blanks) + 1);
}

} // namespace

std::optional<double> noDataNumber(std::string_view text)
{
    std::string digits(trimmed(text));
    std::replace(digits.begin(), digits.end(), ',', '.');
    const char *begin = digits.data() + (digits.starts_with('+') ? 1 : 0);
    const char *last = digits.data() + digits.size();
    double number = 0;
    const auto [end, fault] = std::from_chars(begin, last, number);
    if (fault != std::errc() || end != last)
        return std::nullopt;
    return number;
}

bool isNoDataText(std::string_view text)
{
    return trimmed(text).empty() || noDataNumber(text);
}

} // namespace vlt::contract
