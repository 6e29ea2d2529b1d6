#include "plugins/tables/values/Angle.h"

#include "plugins/tables/cells/Cell.h"
#include "plugins/tables/cells/Numbers.h"
#include "plugins/tables/table/HeaderWords.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <string>

namespace vlt::driver {

namespace {

using contract::TableTextId;

constexpr double MinutesPerDegree = 60;
constexpr double SecondsPerDegree = 3600;

bool isNumberByte(char c)
{
    return (c >= '0' && c <= '9') || c == '.' || c == ',';
}

bool isLetter(char c)
{
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

std::optional<double> number(std::string_view text)
{
    return text.find_first_not_of("0123456789.,") == std::string_view::npos
               ? parseEitherNumber(text)
               : std::nullopt;
}

Angle fault(TableTextId why)
{
    return {0, 0, why};
}

/// A character above ASCII that can occur in an angle.
struct Mark
{
    std::string_view bytes;
    char meaning; ///< '-' for a minus sign, ' ' for a separator
};

/// The mark at the start of a text: a degree sign, prime, quotation mark or dash. Null for any
/// other character.
const Mark *markAt(std::string_view text)
{
    static constexpr std::array<Mark, 18> Marks = {{
        {"\xC2\xB0", ' '},     // degree sign
        {"\xC2\xBA", ' '},     // masculine ordinal indicator, used as a degree sign
        {"\xCB\x9A", ' '},     // ring above, used as a degree sign
        {"\xC2\xB4", ' '},     // acute accent
        {"\xC2\xA0", ' '},     // no-break space
        {"\xE2\x80\xAF", ' '}, // narrow no-break space
        {"\xE2\x80\x89", ' '}, // thin space
        {"\xE2\x80\x98", ' '}, // single quotation marks
        {"\xE2\x80\x99", ' '},
        {"\xE2\x80\x9C", ' '}, // double quotation marks
        {"\xE2\x80\x9D", ' '},
        {"\xE2\x80\xB2", ' '}, // prime, double prime
        {"\xE2\x80\xB3", ' '},
        {"\xCA\xB9", ' '}, // modifier primes
        {"\xCA\xBA", ' '},
        {"\xE2\x88\x92", '-'}, // minus sign
        {"\xE2\x80\x93", '-'}, // en dash, hyphen
        {"\xE2\x80\x90", '-'},
    }};
    const auto found = std::find_if(Marks.begin(), Marks.end(), [text](const Mark &mark) {
        return text.starts_with(mark.bytes);
    });
    return found == Marks.end() ? nullptr : &*found;
}

struct Parts
{
    std::array<std::string_view, 3> texts;
    int count = 0;

    bool add(std::string_view text)
    {
        if (count == 3)
            return false;
        texts[static_cast<std::size_t>(count++)] = text;
        return true;
    }
};

bool isDigitAt(std::string_view text, std::size_t at)
{
    return at < text.size() && text[at] >= '0' && text[at] <= '9';
}

/// Size of the degrees and the point behind them in 45.12.33,2, which has two digits for minutes
/// and seconds each; 0 for other texts.
std::size_t dottedDegreesSize(std::string_view text)
{
    const std::size_t dot = text.find('.');
    if (dot == 0 || dot > 3 || dot == text.npos || text.size() < dot + 6)
        return 0;
    const std::string_view rest = text.substr(dot + 1);
    const bool isDotted = isDigitAt(rest, 0) && isDigitAt(rest, 1) && rest[2] == '.' &&
                          isDigitAt(rest, 3) && isDigitAt(rest, 4) && !isDigitAt(rest, 5);
    return isDotted ? dot + 1 : 0;
}

/// Adds a number, or the three in 45.12.33,2. False if there are too many.
bool addNumber(Parts &parts, std::string_view text)
{
    constexpr std::size_t MinutesSize = 2;
    const std::size_t size = parts.count == 0 ? dottedDegreesSize(text) : 0;
    if (size == 0)
        return parts.add(text);
    parts.add(text.substr(0, size - 1));
    parts.add(text.substr(size, MinutesSize));
    return parts.add(text.substr(size + MinutesSize + 1));
}

/// Size of the word for degrees, minutes or seconds at the start of a text; 0 for none.
std::size_t unitWordSize(std::string_view text)
{
    const auto end = std::find_if_not(text.begin(), text.end(), isLetter);
    const std::string word = lowerCase(std::string_view(text.begin(), end));
    static constexpr std::array<std::string_view, 7> Words = {"deg", "degrees", "min",    "minutes",
                                                              "sec", "secs",    "seconds"};
    return std::find(Words.begin(), Words.end(), word) == Words.end() ? 0 : word.size();
}

/// The degrees, minutes and seconds in 451233.2 or 0735612; the number as it is if it has fewer
/// digits than `minDigits` before the decimal mark.
Parts unpacked(const Parts &parts, std::size_t minDigits)
{
    constexpr std::size_t PartSize = 2;
    constexpr std::size_t MaxDigits = 7;
    const std::string_view text = parts.texts[0];
    const std::size_t digits = std::min(text.find_first_of(".,"), text.size());
    if (parts.count != 1 || digits < minDigits || digits > MaxDigits)
        return parts;
    const std::size_t seconds = digits - std::min(digits, PartSize);
    const std::size_t minutes = seconds - std::min(seconds, PartSize);
    const auto orZero = [](std::string_view part) { return part.empty() ? "0" : part; };
    return {{orZero(text.substr(0, minutes)), orZero(text.substr(minutes, seconds - minutes)),
             text.substr(seconds)},
            3};
}

Angle assemble(const Parts &parts, bool negative, int sign)
{
    std::array<double, 3> values = {};
    for (int i = 0; i < parts.count; ++i) {
        const std::string_view text = parts.texts[static_cast<std::size_t>(i)];
        const std::optional<double> value = number(text);
        if (!value)
            return fault("MESS_TAB_NOT_A_NUMBER");
        if (i + 1 < parts.count && *value != std::floor(*value))
            return fault("MESS_TAB_FRACTION");
        if (i > 0 && *value >= MinutesPerDegree)
            return fault("MESS_TAB_BELOW_60");
        values[static_cast<std::size_t>(i)] = *value;
    }
    if (negative && sign != 0)
        return fault("MESS_TAB_SIGN_AND_LETTER");
    const double degrees = values[0] + values[1] / MinutesPerDegree + values[2] / SecondsPerDegree;
    return {negative || sign < 0 ? -degrees : degrees, parts.count, std::nullopt};
}

} // namespace

Angle readAngle(std::string_view text, Axis axis, LetterO letterO, AngleStyle style)
{
    text = trimmed(text);
    if (text.empty())
        return fault("MESS_TAB_PART_EMPTY");
    if (text.find_first_of("0123456789") == std::string_view::npos)
        return fault("MESS_TAB_WITHOUT_NUMBER");
    Parts parts;
    int sign = 0;
    bool negative = false;
    bool hasDashes = false;
    bool unitLetters = false; ///< as in 48d51m24s, where the s is not a hemisphere
    for (std::size_t at = 0; at < text.size();) {
        const Mark *mark = markAt(text.substr(at));
        const char c = mark ? mark->meaning : text[at];
        if (isNumberByte(c)) {
            const std::size_t begin = at;
            while (at < text.size() && isNumberByte(text[at]))
                ++at;
            if (!addNumber(parts, text.substr(begin, at - begin)))
                return fault("MESS_TAB_MANY_PARTS");
            continue;
        }
        if (const std::size_t size = parts.count > 0 ? unitWordSize(text.substr(at)) : 0) {
            at += size;
            continue;
        }
        if (c == '-' && parts.count > 0 && isDigitAt(text, at - 1) && isDigitAt(text, at + 1))
            hasDashes = true; // 82-54-11 W
        else if (c == '-' || c == '+') {
            if (parts.count > 0 || negative)
                return fault("MESS_TAB_NOT_AN_ANGLE");
            negative = c == '-';
        } else if (isLetter(c)) {
            const Hemisphere hemisphere = readHemisphere(text.substr(at), axis, letterO);
            const bool unitLetter =
                parts.count > 0 && hemisphere.size == 1 &&
                ((c | 0x20) == 'd' || (c | 0x20) == 'm' || (unitLetters && c == 's'));
            unitLetters = unitLetters || unitLetter;
            if (!unitLetter) {
                if (hemisphere.fault)
                    return fault(*hemisphere.fault);
                if (sign != 0)
                    return fault("MESS_TAB_TWO_LETTERS");
                sign = hemisphere.sign;
                at += hemisphere.size;
                continue;
            }
        } else if (std::string_view(" \t'\":*").find(c) == std::string_view::npos)
            return fault("MESS_TAB_NOT_AN_ANGLE");
        at += mark ? mark->bytes.size() : 1;
    }
    if (parts.count == 0 || (hasDashes && parts.count < 3)) // 18-23 is a range
        return fault("MESS_TAB_NOT_AN_ANGLE");
    constexpr std::size_t MinDigits = 5; // fewer may be degrees and minutes
    if (style == AngleStyle::Packed || sign != 0)
        parts = unpacked(parts, style == AngleStyle::Packed ? MinDigits - 1 : MinDigits);
    return assemble(parts, negative, sign);
}

Angle joinAngle(std::string_view degrees, std::string_view minutes, std::string_view seconds,
                std::string_view hemisphere, Axis axis, LetterO letterO)
{
    if (degrees.empty())
        return fault("MESS_TAB_PART_EMPTY");
    const bool negative = degrees.starts_with('-');
    if (negative)
        degrees.remove_prefix(1);
    Parts parts = {{degrees, minutes.empty() ? "0" : minutes, seconds},
                   !seconds.empty()   ? 3
                   : !minutes.empty() ? 2
                                      : 1};
    const Hemisphere letter =
        hemisphere.empty() ? Hemisphere() : readHemisphere(hemisphere, axis, letterO);
    return letter.fault ? fault(*letter.fault) : assemble(parts, negative, letter.sign);
}

} // namespace vlt::driver
