#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vlt::driver {

/// How a table writes fractions.
enum class DecimalMark : char {
    Point = '.',
    Comma = ',',
};

/// A decimal number that fills the whole text: sign, digits, at most one decimal mark, exponent. No
/// white space, no digit grouping, neither infinity nor NaN, whatever the process locale. Correctly
/// rounded.
std::optional<double> parseNumber(std::string_view text, DecimalMark mark = DecimalMark::Point);

/// What a text is when it stands for a number.
struct NumberShape
{
    bool isNumber = false;
    bool isWhole = false;   ///< neither decimal mark nor exponent
    bool usesComma = false; ///< a comma is the decimal mark
    bool usesPoint = false; ///< a point is the decimal mark
    bool isIdentifier =
        false; ///< digits that a number would lose: leading zeros, over 15 digits, a phone number
};

/// Tells what a trimmed text looks like; either decimal mark is accepted.
NumberShape numberShape(std::string_view text);

/// Shortest decimal form with at most 15 significant digits: 0.1, 30, 1e-07.
std::string numberText(double number);

} // namespace vlt::driver
