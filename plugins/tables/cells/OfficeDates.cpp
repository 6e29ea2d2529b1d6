#include "plugins/tables/cells/OfficeDates.h"

#include <array>
#include <chrono>
#include <cmath>
#include <cstdio>

namespace vlt::driver {

namespace {

constexpr double LastDay = 2958465; ///< 9999-12-31
constexpr int FictitiousLeapDay = 60;
constexpr int DaysFrom1900To1904 = 1462;
constexpr int64_t SecondsPerDay = 86400;

} // namespace

bool isDateFormat(std::string_view format)
{
    bool quoted = false;
    for (std::size_t at = 0; at < format.size(); ++at) {
        const char c = format[at];
        if (c == '"')
            quoted = !quoted;
        else if (quoted)
            continue;
        else if (c == '\\' || c == '_' || c == '*')
            ++at;
        else if (c == '[') {
            const std::size_t close = format.find(']', at);
            if (close == std::string_view::npos)
                return false;
            const char inside = at + 1 < close ? format[at + 1] : '\0';
            const bool elapsed = (inside == 'h' || inside == 'm' || inside == 's') &&
                                 format.substr(at + 1, close - at - 1).find_first_not_of(inside) ==
                                     std::string_view::npos;
            if (elapsed)
                return true;
            at = close;
        } else if (c == ';' || format.substr(at).starts_with("General"))
            return false; // the first section is for positive numbers
        else if (std::string_view("ymdhsYMDHS").find(c) != std::string_view::npos)
            return true;
    }
    return false;
}

bool isDateFormatId(int id)
{
    return (id >= 14 && id <= 22) || (id >= 27 && id <= 36) || (id >= 45 && id <= 47) ||
           (id >= 50 && id <= 58);
}

std::string isoDate(double serial, bool from1904)
{
    if (from1904)
        serial += DaysFrom1900To1904;
    if (!(serial >= 0 && serial < LastDay + 1))
        return {};
    int64_t day = static_cast<int64_t>(std::floor(serial));
    int64_t seconds = std::llround((serial - static_cast<double>(day)) * SecondsPerDay);
    if (seconds == SecondsPerDay) {
        ++day;
        seconds = 0;
    }
    std::array<char, 32> text;
    const auto time = [&](const char *format, auto... before) {
        std::snprintf(text.data(), text.size(), format, before..., static_cast<int>(seconds / 3600),
                      static_cast<int>(seconds / 60 % 60), static_cast<int>(seconds % 60));
        return std::string(text.data());
    };
    if (day == 0)
        return time("%02d:%02d:%02d");
    const std::chrono::sys_days origin =
        std::chrono::year(1899) / std::chrono::December / (day < FictitiousLeapDay ? 31 : 30);
    const std::chrono::year_month_day date(origin + std::chrono::days(day));
    const int year = static_cast<int>(date.year());
    const unsigned month = static_cast<unsigned>(date.month());
    const unsigned dayOfMonth = static_cast<unsigned>(date.day());
    if (seconds != 0)
        return time("%04d-%02u-%02uT%02d:%02d:%02d", year, month, dayOfMonth);
    std::snprintf(text.data(), text.size(), "%04d-%02u-%02u", year, month, dayOfMonth);
    return text.data();
}

} // namespace vlt::driver
