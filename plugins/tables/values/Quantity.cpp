#include "plugins/tables/values/Quantity.h"

#include "plugins/tables/cells/Cell.h"
#include "plugins/tables/cells/FeetAndInches.h"
#include "plugins/tables/cells/GroupedNumber.h"
#include "plugins/tables/cells/Numbers.h"
#include "plugins/tables/table/HeaderWords.h"

#include <algorithm>
#include <array>
#include <numbers>
#include <string>

namespace vlt::driver {

namespace {

constexpr double MetresPerFoot = 0.3048;
constexpr double MetresPerMile = 1609.344;
constexpr double DegreesPerGon = 0.9;
constexpr double DegreesPerRadian = 180 / std::numbers::pi;
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
    Unit{"dm", 0.1},
    Unit{"cm", 0.01},
    Unit{"mm", 0.001},
    Unit{"km", 1000},
    Unit{"kilometers", 1000},
    Unit{"kilometres", 1000},
    Unit{"ft", MetresPerFoot},
    Unit{"'", MetresPerFoot},
    Unit{"′", MetresPerFoot},
    Unit{"’", MetresPerFoot},
    Unit{"foot", MetresPerFoot},
    Unit{"feet", MetresPerFoot},
    Unit{"mi", MetresPerMile},
    Unit{"mile", MetresPerMile},
    Unit{"miles", MetresPerMile},
};
constexpr std::array AngleUnits = {
    Unit{"°", 1},
    Unit{"º", 1}, // masculine ordinal indicator
    Unit{"˚", 1}, // ring above
    Unit{"deg", 1},
    Unit{"degree", 1},
    Unit{"degrees", 1},
    Unit{"degré", 1},
    Unit{"degrés", 1},
    Unit{"grados", 1},
    Unit{"gradi", 1},
    Unit{"graus", 1},
    Unit{"graden", 1},
    Unit{"gon", DegreesPerGon},
    Unit{"gons", DegreesPerGon},
    Unit{"grad", DegreesPerGon},
    Unit{"grads", DegreesPerGon},
    Unit{"grades", DegreesPerGon},
    Unit{"rad", DegreesPerRadian},
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

/// Whether a text starts with a word of letters and then digits: "18a2" is no frequency.
bool startsWithMixedWord(std::string_view text)
{
    const auto isLetter = [](char c) { return (c | 0x20) >= 'a' && (c | 0x20) <= 'z'; };
    const auto end = std::find_if_not(text.begin(), text.end(), isLetter);
    return end != text.begin() && end != text.end() && isDigit(*end);
}

/// A number at the start of a text, and the text after it.
struct LeadingNumber
{
    double number = 0;
    std::string_view rest;
    bool mayBeList = false; ///< see GroupedNumber
};

std::optional<LeadingNumber> leadingNumber(std::string_view text)
{
    if (const auto plain = parseNumber(text)) // nearly all are
        return LeadingNumber{*plain, {}, false};
    if (const auto grouped = leadingGroupedNumber(text))
        return LeadingNumber{grouped->number, trimmed(text.substr(grouped->size)),
                             grouped->mayBeList};
    const std::size_t sign = text.starts_with('-') || text.starts_with('+') ? 1 : 0;
    std::size_t size = std::min(text.find_first_not_of("0123456789.,eE+-", sign), text.size());
    // 1.15e10 is one number; in "6123.1, 6200.2" or "18-23" the first one counts.
    if (!numberShape(text.substr(0, size)).isNumber) {
        const auto digitFollows = [text](std::size_t at) {
            return at + 1 < text.size() && isDigit(text[at + 1]);
        };
        size = sign;
        bool mark = false;
        while (size < text.size() &&
               (isDigit(text[size]) ||
                (!mark && (text[size] == '.' || text[size] == ',') && digitFollows(size)))) {
            mark = mark || !isDigit(text[size]);
            ++size;
        }
    }
    const auto number = parseEitherNumber(text.substr(0, size));
    if (!number)
        return std::nullopt;
    return LeadingNumber{*number, trimmed(text.substr(size)), false};
}

/// A number with or without a unit behind it.
std::optional<double> readQuantity(std::string_view text, double unit, UnitOf unitOf)
{
    const auto leading = leadingNumber(trimmed(text));
    if (!leading)
        return std::nullopt;
    const auto own = leading->rest.empty() ? std::optional(unit) : unitOf(leading->rest);
    return own ? std::optional(leading->number * *own) : std::nullopt;
}

} // namespace

std::optional<double> metresPer(std::string_view word)
{
    return factorOf(LengthUnits, word);
}

std::optional<double> degreesPer(std::string_view word)
{
    return word == "Grad" ? std::optional(1.0) : factorOf(AngleUnits, word);
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
    if (const auto length = readQuantity(text, unitM, metresPer))
        return length;
    const auto feet = parseFeetAndInches(text);
    return feet ? std::optional(*feet * MetresPerFoot) : std::nullopt;
}

std::optional<double> readDegrees(std::string_view text, double unitDeg)
{
    return readQuantity(text, unitDeg, degreesPer);
}

std::optional<double> readFrequencyMHz(std::string_view text, std::optional<double> unitMHz)
{
    const std::size_t begin = std::min(text.find_first_not_of(" \t['\"("), text.size());
    const auto leading = leadingNumber(trimmed(text.substr(begin)));
    if (!leading)
        return std::nullopt;
    // "11 485" may be one frequency or two
    if (leading->mayBeList ||
        (!leading->rest.empty() && (isDigit(leading->rest[0]) || (leading->rest[0] & 0x80) != 0 ||
                                    startsWithMixedWord(leading->rest))))
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
