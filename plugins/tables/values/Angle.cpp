#include "plugins/tables/values/Angle.h"

#include "plugins/tables/cells/Cell.h"
#include "plugins/tables/cells/Numbers.h"

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
};

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

Angle readAngle(std::string_view text, Axis axis, LetterO letterO)
{
    text = trimmed(text);
    if (text.empty())
        return fault("MESS_TAB_PART_EMPTY");
    if (text.find_first_of("0123456789") == std::string_view::npos)
        return fault("MESS_TAB_WITHOUT_NUMBER");
    Parts parts;
    int sign = 0;
    bool negative = false;
    bool unitLetters = false; ///< as in 48d51m24s, where the s is not a hemisphere
    for (std::size_t at = 0; at < text.size();) {
        const Mark *mark = markAt(text.substr(at));
        const char c = mark ? mark->meaning : text[at];
        if (isNumberByte(c)) {
            const std::size_t begin = at;
            while (at < text.size() && isNumberByte(text[at]))
                ++at;
            if (parts.count == 3)
                return fault("MESS_TAB_MANY_PARTS");
            parts.texts[static_cast<std::size_t>(parts.count++)] = text.substr(begin, at - begin);
            continue;
        }
        if (c == '-' || c == '+') {
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
    return parts.count == 0 ? fault("MESS_TAB_NOT_AN_ANGLE") : assemble(parts, negative, sign);
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
