#include "plugins/tables/cells/Numbers.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>

namespace vlt::driver {

namespace {

constexpr int ExactDigits = 15; ///< decimal digits that a double always preserves
constexpr int MaxPhoneDigits = 6;

constexpr std::array<double, 23> PowersOfTen = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                                1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                                1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

/// The general case: exact but slower.
std::optional<double> parseAnyNumber(std::string_view text, DecimalMark mark)
{
    std::string plain;
    plain.reserve(text.size());
    for (std::size_t at = text.starts_with('+') ? 1 : 0; at < text.size(); ++at) {
        const char c = text[at];
        const bool sign = c == '-' || c == '+';
        if (c == static_cast<char>(mark))
            plain += '.';
        else if (isDigit(c) || c == 'e' || c == 'E' || sign)
            plain += c;
        else
            return std::nullopt;
    }
    double value = 0;
    const auto [end, error] = std::from_chars(plain.data(), plain.data() + plain.size(), value);
    if (error == std::errc::result_out_of_range || end != plain.data() + plain.size() ||
        error != std::errc() || !std::isfinite(value))
        return std::nullopt;
    return value;
}

} // namespace

std::optional<double> parseNumber(std::string_view text, DecimalMark mark)
{
    // Up to 15 digits with a small power of ten are one exact division (W. D. Clinger, "How to read
    // floating point numbers accurately", 1990).
    const char *at = text.data();
    const char *end = at + text.size();
    const bool negative = at != end && *at == '-';
    if (at != end && (*at == '-' || *at == '+'))
        ++at;
    uint64_t digits = 0;
    const char *first = at;
    while (at != end && isDigit(*at))
        digits = digits * 10 + static_cast<uint64_t>(*at++ - '0');
    long count = at - first;
    long fraction = 0;
    if (at != end && *at == static_cast<char>(mark)) {
        const char *point = ++at;
        while (at != end && isDigit(*at))
            digits = digits * 10 + static_cast<uint64_t>(*at++ - '0');
        fraction = at - point;
        count += fraction;
    }
    if (at != end || count == 0 || count > ExactDigits)
        return count == 0 ? std::nullopt : parseAnyNumber(text, mark);
    const double value =
        static_cast<double>(digits) / PowersOfTen[static_cast<std::size_t>(fraction)];
    return negative ? -value : value;
}

std::optional<double> parseEitherNumber(std::string_view text)
{
    const NumberShape shape = numberShape(text);
    return shape.isNumber
               ? parseNumber(text, shape.usesComma ? DecimalMark::Comma : DecimalMark::Point)
               : std::nullopt;
}

NumberShape numberShape(std::string_view text)
{
    NumberShape shape;
    std::size_t at = 0;
    const bool plus = text.starts_with('+');
    if (plus || text.starts_with('-'))
        ++at;
    const std::size_t first = at;
    std::size_t whole = 0;
    std::size_t digits = 0;
    for (; at < text.size() && isDigit(text[at]); ++at)
        ++whole;
    digits = whole;
    if (at < text.size() && (text[at] == '.' || text[at] == ',')) {
        (text[at] == ',' ? shape.usesComma : shape.usesPoint) = true;
        for (++at; at < text.size() && isDigit(text[at]); ++at)
            ++digits;
        if (digits == whole && shape.usesComma) // "12," is a list or a mistake, not a number
            return {};
    }
    if (digits == 0)
        return {};
    if (at < text.size() && (text[at] == 'e' || text[at] == 'E')) {
        // 12E3 may also be the name of a radio cell; 1.2E3 and 12E+03 are numbers.
        const std::size_t exponent = at + 1;
        const bool sign =
            exponent < text.size() && (text[exponent] == '+' || text[exponent] == '-');
        at = exponent + (sign ? 1 : 0);
        if (at == text.size() || !(sign || shape.usesComma || shape.usesPoint))
            return {};
        while (at < text.size() && isDigit(text[at]))
            ++at;
        shape.isWhole = false;
    } else
        shape.isWhole = !shape.usesComma && !shape.usesPoint;
    if (at != text.size())
        return {};
    shape.isNumber = true;
    shape.isIdentifier = (whole > 1 && text[first] == '0') ||
                         (shape.isWhole && digits > ExactDigits) ||
                         (plus && shape.isWhole && digits > MaxPhoneDigits);
    return shape;
}

std::string numberText(double number)
{
    std::array<char, 32> buffer;
    const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number,
                                            std::chars_format::general, ExactDigits);
    return error == std::errc() ? std::string(buffer.data(), end) : std::string();
}

} // namespace vlt::driver
