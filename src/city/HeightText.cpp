#include "city/HeightText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <string>
#include <vector>

namespace vlt::city {

namespace {

using contract::HeightUnit;

constexpr double FootM = 0.3048;
constexpr double InchesPerFoot = 12;

/// Parts of a text that are written differently but mean the same.
struct Spelling
{
    std::string_view written;
    std::string_view plain;
};
constexpr Spelling Spellings[] = {
    {"\u00A0", " "}, {"\u202F", " "},  {"\u2009", " "}, {"\t", " "},      {"\u2032", "'"},
    {"\u2019", "'"}, {"\u2033", "\""}, {"''", "\""},    {"\u201D", "\""}, {"\u2013", "-"},
    {"\u2014", "-"}, {"\u2248", "~"},  {"\u2212", "-"}, {"\u00E8", "e"},  {"\u00C8", "e"},
    {"\u00E9", "e"}, {"\u00C9", "e"},
};

/// Words before a height that say that it is not exact.
constexpr std::string_view Approximations[] = {
    "~",      "approximately ", "approx. ",   "approx ", "about ", "around ",
    "circa ", "ca. ",           "ca ",        "c. ",     "c.",     "environ ",
    "env. ",  "env ",           "ungefaehr ", "etwa ",   "<",      ">",
    "="};

struct Unit
{
    std::string_view word;
    double sizeM;
};
constexpr Unit Units[] = {{"m", 1},         {"m.", 1},       {"mtr", 1},      {"mtrs", 1},
                          {"meter", 1},     {"meters", 1},   {"metre", 1},    {"metres", 1},
                          {"metri", 1},     {"metros", 1},   {"cm", 0.01},    {"ft", FootM},
                          {"ft.", FootM},   {"foot", FootM}, {"feet", FootM}, {"'", FootM},
                          {"pieds", FootM}, {"pied", FootM}};

constexpr std::string_view LevelWords[] = {
    "etage",      "etages", "niveau",  "niveaux", "level",   "levels",   "lvl",       "floor",
    "floors",     "storey", "storeys", "story",   "stories", "geschoss", "geschosse", "stockwerk",
    "stockwerke", "etagen", "piso",    "pisos",   "planta",  "plantas",  "piano",     "piani"};

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

std::string_view trimmed(std::string_view text)
{
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

/// The text in lower case with the spellings of the tables above.
std::string plainText(std::string_view text)
{
    std::string plain;
    while (!text.empty()) {
        const auto known =
            std::find_if(std::begin(Spellings), std::end(Spellings),
                         [&](const Spelling &one) { return text.starts_with(one.written); });
        if (known != std::end(Spellings)) {
            plain += known->plain;
            text.remove_prefix(known->written.size());
            continue;
        }
        const char c = text.front();
        plain += c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
        text.remove_prefix(1);
    }
    return std::string(trimmed(plain));
}

/// The length of a number at the start of a text that has groups of three digits, "1 234,5" or
/// "1,234,567"; 0 if it has none. `digits` receives the number without the marks of groups.
std::size_t groupedAt(std::string_view text, std::string &digits)
{
    std::size_t at = 0;
    while (at < text.size() && isDigit(text[at]))
        ++at;
    if (at == 0 || at > 3 || at >= text.size())
        return 0;
    const char mark = text[at];
    const auto isGroup = [&](std::size_t from) {
        return from + 3 < text.size() && text[from] == mark &&
               std::all_of(text.begin() + static_cast<std::ptrdiff_t>(from) + 1,
                           text.begin() + static_cast<std::ptrdiff_t>(from) + 4, isDigit) &&
               (from + 4 == text.size() || !isDigit(text[from + 4]));
    };
    digits = text.substr(0, at);
    std::size_t groups = 0;
    for (; isGroup(at); at += 4, ++groups)
        digits += text.substr(at + 1, 3);
    const bool isDecimal = mark == '.' || mark == ','; // one group is a fraction: "1,234"
    const bool isMark = mark == ' ' || mark == '\'' || isDecimal;
    if (!isMark || groups < (isDecimal ? 2U : 1U)) {
        const bool isMixed = isDecimal && groups == 1 && at < text.size() && text[at] != mark &&
                             (text[at] == '.' || text[at] == ','); // "1,234.5"
        if (!isMixed)
            return 0;
    }
    if (at + 1 < text.size() && (text[at] == '.' || text[at] == ',') && isDigit(text[at + 1])) {
        digits += '.';
        for (++at; at < text.size() && isDigit(text[at]); ++at)
            digits += text[at];
    }
    return at;
}

/// Takes a number from the start of a text: with a sign, groups, an exponent, a decimal point or
/// comma.
std::optional<double> takeNumber(std::string_view &text)
{
    std::string_view rest = trimmed(text);
    const bool isNegative = rest.starts_with('-');
    if (isNegative || rest.starts_with('+'))
        rest = trimmed(rest.substr(1));
    if (rest.empty() || !(isDigit(rest.front()) || rest.front() == '.' || rest.front() == ','))
        return std::nullopt;
    std::string digits;
    std::size_t length = groupedAt(rest, digits);
    const bool isGrouped = length > 0;
    if (!isGrouped) {
        digits = rest;
        if (const std::size_t comma = digits.find(','); comma != std::string::npos)
            digits[comma] = '.';
    }
    double number = 0;
    const char *last = digits.data() + digits.size();
    const auto [end, fault] = std::from_chars(digits.data(), last, number);
    if (fault != std::errc() || !std::isfinite(number))
        return std::nullopt;
    if (!isGrouped)
        length = static_cast<std::size_t>(end - digits.data());
    text = rest.substr(length);
    return isNegative ? -number : number;
}

/// The length of the word at the start of a text.
std::string_view wordAt(std::string_view text)
{
    return text.substr(0, std::min(text.find_first_of(" 0123456789-;/,+~"), text.size()));
}

/// One height of a text, in its own unit.
struct Part
{
    double number = 0;
    std::optional<HeightUnit> unit;
    double sizeM = 1; ///< of the unit
    bool isApproximate = false;
};

/// Takes a unit and, after feet, a number of inches.
void takeUnit(std::string_view &text, Part &height)
{
    const std::string_view rest = trimmed(text);
    const std::string_view word = wordAt(rest);
    if (std::find(std::begin(LevelWords), std::end(LevelWords), word) != std::end(LevelWords)) {
        height.unit = HeightUnit::Levels;
        text = rest.substr(word.size());
        return;
    }
    const auto unit = std::find_if(std::begin(Units), std::end(Units),
                                   [word](const Unit &one) { return one.word == word; });
    if (unit == std::end(Units))
        return;
    height.unit = HeightUnit::Metres;
    height.sizeM = unit->sizeM;
    text = rest.substr(word.size());
    if (unit->sizeM != FootM)
        return;
    std::string_view inches = trimmed(text);
    if (inches.starts_with('-')) // 39'-6"
        inches.remove_prefix(1);
    const std::optional<double> number = takeNumber(inches);
    inches = trimmed(inches);
    for (const std::string_view mark : {"\"", "inches", "inch", "in"}) {
        if (number && *number >= 0 && inches.starts_with(mark)) {
            height.number += (height.number < 0 ? -*number : *number) / InchesPerFoot;
            text = inches.substr(mark.size());
            return;
        }
    }
}

bool takeApproximation(std::string_view &text)
{
    for (const std::string_view word : Approximations) {
        if (text.starts_with(word)) {
            text = trimmed(text.substr(word.size()));
            return true;
        }
    }
    return false;
}

/// Takes "r+3": the ground floor and three more, perhaps with "+c" for an attic.
bool takeFloorsAboveGround(std::string_view &text, Part &height)
{
    if (!text.starts_with('r'))
        return false;
    std::string_view rest = trimmed(text.substr(1));
    if (!rest.starts_with('+'))
        return false;
    const std::optional<double> floors = takeNumber(rest);
    if (!floors)
        return false;
    height.number = *floors + 1;
    height.unit = HeightUnit::Levels;
    text = rest == "+c" || rest == "+combles" ? std::string_view() : rest;
    return true;
}

std::optional<Part> takeHeight(std::string_view &text)
{
    text = trimmed(text);
    Part height;
    while (takeApproximation(text))
        height.isApproximate = true;
    if (takeFloorsAboveGround(text, height))
        return height;
    const std::optional<double> number = takeNumber(text);
    if (!number)
        return std::nullopt;
    height.number = *number;
    takeUnit(text, height);
    return height;
}

enum class Joint { None, Range, List };

Joint takeJoint(std::string_view &text)
{
    constexpr std::pair<std::string_view, Joint> Joints[] = {
        {"-", Joint::Range},    {"to ", Joint::Range},     {"a ", Joint::Range},
        {"bis ", Joint::Range}, {"\u00E0 ", Joint::Range}, {"...", Joint::Range},
        {";", Joint::List},     {"/", Joint::List}};
    text = trimmed(text);
    for (const auto &[mark, joint] : Joints) {
        if (text.starts_with(mark)) {
            text.remove_prefix(mark.size());
            return joint;
        }
    }
    return Joint::None;
}

/// One height from several: those without a unit have that of the last one.
std::optional<ReadHeight> combined(const std::vector<Part> &parts, Joint joint)
{
    const Part &last = parts.back();
    ReadHeight one{0, last.unit, parts.size() > 1};
    for (const Part &part : parts) {
        if (part.unit && part.unit != last.unit)
            return std::nullopt;
        const double number = part.number * (part.unit ? part.sizeM : last.sizeM);
        if (joint == Joint::Range)
            one.number += number / static_cast<double>(parts.size());
        else
            one.number = &part == parts.data() ? number : std::max(one.number, number);
        one.isApproximate = one.isApproximate || part.isApproximate;
    }
    return one;
}

} // namespace

std::optional<ReadHeight> readHeight(std::string_view text)
{
    constexpr std::size_t MaxLength = 200;
    constexpr std::size_t MaxHeights = 20;
    if (text.size() > MaxLength)
        return std::nullopt;
    const std::string plain = plainText(text);
    std::string_view rest = plain;
    std::vector<Part> heights;
    Joint all = Joint::None;
    while (heights.size() < MaxHeights) {
        const std::optional<Part> height = takeHeight(rest);
        if (!height)
            return std::nullopt;
        heights.push_back(*height);
        if (trimmed(rest).empty())
            break;
        const Joint joint = takeJoint(rest);
        const bool isOther = all != Joint::None && (joint != all || joint == Joint::Range);
        if (joint == Joint::None || isOther)
            return std::nullopt;
        all = joint;
    }
    return combined(heights, all);
}

} // namespace vlt::city
