#include "plugins/tables/cells/ValueList.h"

#include "plugins/tables/cells/Bearing.h"
#include "plugins/tables/cells/Cell.h"
#include "plugins/tables/cells/GroupedNumber.h"

#include <algorithm>
#include <cstddef>
#include <initializer_list>

namespace vlt::driver {

namespace {

constexpr std::string_view Digits = "0123456789";
constexpr std::string_view EnDash = "\xE2\x80\x93";

bool isDigit(char c)
{
    return Digits.find(c) != std::string_view::npos;
}

bool hasDigit(std::string_view text)
{
    return text.find_first_of(Digits) != std::string_view::npos;
}

std::string_view withoutBrackets(std::string_view text)
{
    text = trimmed(text);
    if (text.size() < 2)
        return text;
    const std::size_t kind = std::string_view("[({").find(text.front());
    return kind != std::string_view::npos && text.back() == std::string_view("])}")[kind]
               ? trimmed(text.substr(1, text.size() - 2))
               : text;
}

/// Size of the separator at a position of a text; 0 if there is none.
using SeparatorAt = std::size_t (*)(std::string_view text, std::size_t at);

template<char separator>
std::size_t characterAt(std::string_view text, std::size_t at)
{
    return text[at] == separator ? 1 : 0;
}

/// A comma before a blank.
std::size_t commaAndBlankAt(std::string_view text, std::size_t at)
{
    return text[at] == ',' && at + 1 < text.size() && text[at + 1] == ' ' ? 1 : 0;
}

/// A dash between blanks, or between a digit or degree sign and a digit. Others are signs or parts
/// of names.
std::size_t dashAt(std::string_view text, std::size_t at)
{
    const std::size_t size = text[at] == '-'                       ? 1
                             : text.substr(at).starts_with(EnDash) ? EnDash.size()
                                                                   : 0;
    if (size == 0 || at == 0 || at + size >= text.size())
        return 0;
    const char before = text[at - 1];
    const char after = text[at + size];
    const bool isBetweenBlanks = before == ' ' && after == ' ';
    const bool isBetweenValues =
        (isDigit(before) || text.substr(0, at).ends_with("\xC2\xB0")) && isDigit(after);
    return isBetweenBlanks || isBetweenValues ? size : 0;
}

/// The parts of a text between separators; nothing if it has none.
std::vector<std::string_view> partsOf(std::string_view text, SeparatorAt separatorAt)
{
    std::vector<std::string_view> parts;
    std::size_t begin = 0;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t size = separatorAt(text, at);
        if (size > 0) {
            parts.push_back(trimmed(text.substr(begin, at - begin)));
            begin = at + size;
        }
        at += std::max<std::size_t>(size, 1);
    }
    if (!parts.empty())
        parts.push_back(trimmed(text.substr(begin)));
    return parts;
}

/// Whether commas separate the values of a text instead of being decimal marks.
bool isCommaList(std::string_view text)
{
    const auto commas = std::count(text.begin(), text.end(), ',');
    const auto grouped = leadingGroupedNumber(text);
    if (commas == 0 || (grouped && !grouped->mayBeList))
        return false;
    if (commas > 1)
        return true;
    const std::size_t comma = text.find(',');
    const bool isBetweenDigits = comma > 0 && comma + 1 < text.size() && isDigit(text[comma - 1]) &&
                                 isDigit(text[comma + 1]);
    // beside a point as decimal mark, one comma separates: "30.5,28.0"
    return !isBetweenDigits || text.find('.') != std::string_view::npos;
}

/// The parts at the first of the separators that occurs; nothing if none does.
std::vector<std::string_view> cutAtFirst(std::string_view text,
                                         std::initializer_list<SeparatorAt> separators)
{
    for (const SeparatorAt separatorAt : separators) {
        if (auto parts = partsOf(text, separatorAt); !parts.empty())
            return parts;
    }
    return {};
}

/// Numbers with blanks between them: "0 120 240". "11 485" may be one number.
std::vector<std::string_view> blankList(std::string_view text)
{
    if (text.find(' ') == std::string_view::npos ||
        text.find_first_not_of("0123456789. ") != std::string_view::npos ||
        leadingGroupedNumber(text))
        return {};
    std::vector<std::string_view> parts = partsOf(text, characterAt<' '>);
    std::erase_if(parts, [](std::string_view part) { return part.empty(); });
    return parts;
}

} // namespace

std::vector<std::string_view> splitNames(std::string_view text)
{
    text = withoutBrackets(text);
    auto parts =
        cutAtFirst(text, {characterAt<';'>, characterAt<'|'>, characterAt<'\n'>, characterAt<'/'>});
    return parts.empty() ? std::vector{text} : parts;
}

std::vector<std::string_view> splitList(std::string_view text)
{
    text = withoutBrackets(text);
    const std::size_t sign = text.starts_with('-') ? 1 : 0;
    if (text.find_first_not_of("0123456789.", sign) == std::string_view::npos) // most often
        return {text};
    auto parts = splitNames(text);
    if (!hasDigit(text)) { // "N/A" is no list, "N/SE" is one
        const bool areDirections = std::all_of(parts.begin(), parts.end(), parseCompassPoint);
        return areDirections ? parts : std::vector{text};
    }
    if (parts.size() > 1)
        return parts;
    if (auto values = partsOf(text, characterAt<'&'>); !values.empty())
        return values;
    if (auto values = blankList(text); !values.empty())
        return values;
    if (auto values = cutAtFirst(text, {commaAndBlankAt, dashAt}); !values.empty())
        return values;
    return isCommaList(text) ? partsOf(text, characterAt<','>) : std::vector{text};
}

} // namespace vlt::driver
