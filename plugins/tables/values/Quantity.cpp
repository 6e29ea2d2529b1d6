#include "plugins/tables/values/Quantity.h"

#include "plugins/tables/cells/Cell.h"
#include "plugins/tables/cells/Numbers.h"
#include "plugins/tables/table/HeaderWords.h"

#include <algorithm>
#include <array>
#include <string>

namespace vlt::driver {

namespace {

constexpr double MetresPerFoot = 0.3048;
constexpr double MetresPerMile = 1609.344;
constexpr double MaxGHz = 200;
constexpr double MinHz = 1e6;

struct Unit
{
    std::string_view word;
    double factor;
};

constexpr std::array LengthUnits = {
    Unit{"m", 1},
    Unit{"meter", 1},
    Unit{"meters", 1},
    Unit{"metre", 1},
    Unit{"metres", 1},
    Unit{"mètres", 1},
    Unit{"km", 1000},
    Unit{"kilometers", 1000},
    Unit{"kilometres", 1000},
    Unit{"ft", MetresPerFoot},
    Unit{"foot", MetresPerFoot},
    Unit{"feet", MetresPerFoot},
    Unit{"mi", MetresPerMile},
    Unit{"mile", MetresPerMile},
    Unit{"miles", MetresPerMile},
};
constexpr std::array FrequencyUnits = {Unit{"hz", 1e-6}, Unit{"khz", 1e-3}, Unit{"mhz", 1},
                                       Unit{"ghz", 1e3}, Unit{"thz", 1e6}};

std::optional<double> factorOf(const auto &units, std::string_view word)
{
    const std::string lower = lowerCase(word);
    const auto found = std::find_if(units.begin(), units.end(),
                                    [&](const Unit &unit) { return unit.word == lower; });
    return found == units.end() ? std::nullopt : std::optional(found->factor);
}

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

/// A number at the start of a text, and the text after it.
struct LeadingNumber
{
    double number = 0;
    std::string_view rest;
};

/// Size of a number with grouped thousands at the start of a text, such as 11,485.5; 0 without one.
/// Only a point after the groups shows that the commas are not decimal marks.
std::size_t groupedSize(std::string_view text)
{
    const auto digitsAt = [text](std::size_t at) {
        std::size_t count = 0;
        while (at + count < text.size() && isDigit(text[at + count]))
            ++count;
        return count;
    };
    std::size_t at = digitsAt(0);
    if (at == 0 || at > 3)
        return 0;
    std::size_t groups = 0;
    for (; at < text.size() && text[at] == ',' && digitsAt(at + 1) == 3; at += 4)
        ++groups;
    const bool fraction = at < text.size() && text[at] == '.' && digitsAt(at + 1) > 0;
    return groups > 0 && fraction ? at + 1 + digitsAt(at + 1) : 0;
}

std::optional<LeadingNumber> leadingNumber(std::string_view text)
{
    std::size_t begin = !text.empty() && (text[0] == '-' || text[0] == '+') ? 1 : 0;
    const bool negative = text.starts_with('-');
    std::string_view digits = text.substr(begin);
    std::string plain;
    std::size_t size = groupedSize(digits);
    if (size > 0) {
        plain = digits.substr(0, size);
        plain.erase(std::remove(plain.begin(), plain.end(), ','), plain.end());
    } else {
        const std::size_t end = digits.find_first_not_of("0123456789.,eE+-");
        size = end == std::string_view::npos ? digits.size() : end;
        // 1.15e10 is one number; in "6123.1, 6200.2" or "18-23" the first one counts.
        if (!numberShape(digits.substr(0, size)).isNumber) {
            size = 0;
            bool mark = false;
            while (size < digits.size() &&
                   (isDigit(digits[size]) ||
                    (!mark && (digits[size] == '.' || digits[size] == ',') &&
                     size + 1 < digits.size() && isDigit(digits[size + 1])))) {
                mark = mark || !isDigit(digits[size]);
                ++size;
            }
        }
        plain = digits.substr(0, size);
        std::replace(plain.begin(), plain.end(), ',', '.');
    }
    const std::optional<double> number = parseNumber(plain);
    if (!number)
        return std::nullopt;
    return LeadingNumber{negative ? -*number : *number, trimmed(digits.substr(size))};
}

} // namespace

std::optional<double> metresPer(std::string_view word)
{
    return factorOf(LengthUnits, word);
}

std::optional<double> megahertzPer(std::string_view word)
{
    return factorOf(FrequencyUnits, word);
}

std::optional<double> unitInName(std::string_view name, UnitOf unitOf)
{
    // also in lower case, because wordsOf() splits "kHz" into two words
    for (const std::string &text : {lowerCase(name), std::string(name)}) {
        for (const std::string &word : wordsOf(text)) {
            if (const auto unit = unitOf(word))
                return unit;
        }
    }
    return std::nullopt;
}

std::optional<double> readLengthM(std::string_view text, double unitM)
{
    const auto leading = leadingNumber(trimmed(text));
    if (!leading)
        return std::nullopt;
    if (leading->rest.empty())
        return leading->number * unitM;
    const auto own = leading->rest == "'" ? MetresPerFoot : metresPer(leading->rest);
    return own ? std::optional(leading->number * *own) : std::nullopt;
}

std::optional<double> readDegrees(std::string_view text)
{
    const auto leading = leadingNumber(trimmed(text));
    const bool whole = leading && (leading->rest.empty() || leading->rest == "\xC2\xB0" ||
                                   lowerCase(leading->rest) == "deg");
    return whole ? std::optional(leading->number) : std::nullopt;
}

std::optional<double> readFrequencyMHz(std::string_view text, std::optional<double> unitMHz)
{
    const std::size_t begin = std::min(text.find_first_not_of(" \t['\"("), text.size());
    const auto leading = leadingNumber(trimmed(text.substr(begin)));
    if (!leading)
        return std::nullopt;
    // "11 485" is a grouped number, and its first part alone would be wrong
    if (!leading->rest.empty() && (isDigit(leading->rest[0]) || (leading->rest[0] & 0x80) != 0))
        return std::nullopt;
    const auto own = unitInName(leading->rest, megahertzPer);
    const auto unit = own ? own : unitMHz;
    if (unit)
        return leading->number * *unit;
    return leading->number < MaxGHz   ? leading->number * 1e3
           : leading->number >= MinHz ? leading->number * 1e-6
                                      : leading->number;
}

} // namespace vlt::driver
