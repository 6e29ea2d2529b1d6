#include "plugins/tables/roles/UnitScale.h"

#include <algorithm>
#include <charconv>

namespace vlt::driver {

namespace {

constexpr std::size_t MaxZeros = 9;

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

/// The number of decimals of the power of ten at the start of a text, and its size; 0 for none.
struct Power
{
    std::size_t decimals = 0;
    std::size_t size = 0;
};

/// "0.001" or "0,001".
Power decimalFraction(std::string_view text)
{
    if (text.size() < 3 || text[0] != '0' || (text[1] != '.' && text[1] != ','))
        return {};
    const std::size_t one = text.find_first_not_of('0', 2);
    return one != std::string_view::npos && text[one] == '1' ? Power{one - 1, one + 1} : Power();
}

/// "1/1000".
Power commonFraction(std::string_view text)
{
    if (!text.starts_with("1/10"))
        return {};
    const std::size_t end = std::min(text.find_first_not_of('0', 3), text.size());
    return {end - 3, end};
}

/// "1e-6", "10^-6".
Power exponent(std::string_view text)
{
    for (const std::string_view base : {"1e-", "1E-", "10^-"}) {
        if (text.starts_with(base) && text.size() > base.size() && isDigit(text[base.size()]))
            return {static_cast<std::size_t>(text[base.size()] - '0'), base.size() + 1};
    }
    return {};
}

} // namespace

std::optional<UnitScale> findUnitScale(std::string_view name)
{
    for (std::size_t at = 0; at < name.size(); ++at) {
        if (!isDigit(name[at]) || (at > 0 && (isDigit(name[at - 1]) || name[at - 1] == '.')))
            continue;
        for (const auto powerAt : {decimalFraction, commonFraction, exponent}) {
            const auto [decimals, size] = powerAt(name.substr(at));
            const std::size_t end = std::min(name.find_first_not_of(" *", at + size), name.size());
            if (decimals == 0 || decimals > MaxZeros || end == name.size() || isDigit(name[end]))
                continue;
            return UnitScale{at, end, "0." + std::string(decimals - 1, '0') + '1'};
        }
    }
    return std::nullopt;
}

std::optional<double> factorOfScale(std::string_view word)
{
    if (!word.starts_with("0."))
        return std::nullopt;
    double factor = 0;
    std::from_chars(word.data(), word.data() + word.size(), factor);
    return factor;
}

} // namespace vlt::driver
