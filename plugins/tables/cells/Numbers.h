#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vlt::driver {

/// The decimal mark of a table.
enum class DecimalMark : char {
    Point = '.',
    Comma = ',',
};

/// The decimal number that is the whole text: sign, digits, at most one decimal mark, exponent.
/// White space, digit grouping, infinity and NaN are refused. The result is rounded correctly and
/// does not depend on the locale of the process.
std::optional<double> parseNumber(std::string_view text, DecimalMark mark = DecimalMark::Point);

/// The decimal number that is the whole text, with a point or a comma as its mark, as
/// numberShape() accepts it.
std::optional<double> parseEitherNumber(std::string_view text);

/// The form of a text that may be a number.
struct NumberShape
{
    bool isNumber = false;
    bool isWhole = false;   ///< neither decimal mark nor exponent
    bool usesComma = false; ///< a comma is the decimal mark
    bool usesPoint = false; ///< a point is the decimal mark
    /// A number would lose some of its characters: leading zeros, over 15 digits, a phone number.
    bool isIdentifier = false;
};

/// The form of a trimmed text; either decimal mark is accepted.
NumberShape numberShape(std::string_view text);

/// Shortest decimal form with at most 15 significant digits: 0.1, 30, 1e-07.
std::string numberText(double number);

} // namespace vlt::driver
