#include "contract/TextPatterns.h"

#include "contract/SceneTexts.h"
#include "contract/TableTexts.h"

#include <algorithm>
#include <iterator>

namespace vlt::contract {

namespace {

constexpr std::size_t PlaceSize = 2; ///< length of "%1"

/// A pattern cut at its placeholders: n placeholders lie between n + 1 pieces of words.
struct CutPattern
{
    const Text *text = nullptr;
    std::vector<std::string_view> words;
    std::size_t wordsSize = 0;
};

std::size_t findPlace(std::string_view pattern, std::size_t from)
{
    std::size_t at = pattern.find('%', from);
    while (at != std::string_view::npos &&
           (at + 1 == pattern.size() || pattern[at + 1] < '1' || pattern[at + 1] > '9'))
        at = pattern.find('%', at + 1);
    return at;
}

CutPattern cut(const Text &text)
{
    const std::string_view pattern = text.pattern;
    CutPattern result;
    result.text = &text;
    std::size_t begin = 0;
    for (std::size_t place = findPlace(pattern, 0); place != std::string_view::npos;
         place = findPlace(pattern, begin)) {
        result.words.push_back(pattern.substr(begin, place - begin));
        begin = place + PlaceSize;
    }
    result.words.push_back(pattern.substr(begin));
    result.wordsSize = pattern.size() - (result.words.size() - 1) * PlaceSize;
    return result;
}

const std::vector<CutPattern> &patterns()
{
    static const std::vector<CutPattern> all = [] {
        std::vector<CutPattern> list;
        list.reserve(TableTexts.size() + SceneTexts.size());
        std::transform(TableTexts.begin(), TableTexts.end(), std::back_inserter(list), cut);
        std::transform(SceneTexts.begin(), SceneTexts.end(), std::back_inserter(list), cut);
        std::stable_sort(list.begin(), list.end(), [](const CutPattern &a, const CutPattern &b) {
            return a.wordsSize > b.wordsSize;
        });
        return list;
    }();
    return all;
}

bool fits(ValueKind kind, std::string_view value)
{
    constexpr std::string_view Digits = "0123456789";
    constexpr std::string_view OfItems = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ"
                                         "0123456789_ ";
    if (kind == ValueKind::Name || kind == ValueKind::Nested)
        return true;
    const std::string_view letters = kind == ValueKind::Count ? Digits : OfItems;
    return !value.empty() && value.find_first_not_of(letters) == std::string_view::npos;
}

/// Finds the values from a placeholder on. The words after a placeholder are searched from the end:
/// the content of a cell, which may be any text, is never the last value.
///
/// @param rest  the message from the placeholder up to the last words
bool takeValues(const CutPattern &pattern, std::string_view rest,
                std::vector<std::string_view> &values)
{
    const ValueKind kind = pattern.text->kinds[values.size()];
    if (values.size() + 2 == pattern.words.size()) {
        values.push_back(rest);
        return fits(kind, rest);
    }
    const std::size_t number = values.size();
    const std::string_view words = pattern.words[number + 1];
    for (std::size_t at = rest.rfind(words); at != std::string_view::npos;
         at = at > 0 ? rest.rfind(words, at - 1) : std::string_view::npos) {
        values.resize(number);
        values.push_back(rest.substr(0, at));
        if (fits(kind, values.back()) &&
            takeValues(pattern, rest.substr(at + words.size()), values))
            return true;
    }
    return false;
}

bool matches(const CutPattern &pattern, std::string_view english,
             std::vector<std::string_view> &values)
{
    const std::vector<std::string_view> &words = pattern.words;
    if (english.size() < pattern.wordsSize || !english.starts_with(words.front()))
        return false;
    if (words.size() == 1)
        return english.size() == words.front().size();
    values.clear();
    return english.ends_with(words.back()) &&
           takeValues(pattern,
                      english.substr(words.front().size(),
                                     english.size() - words.front().size() - words.back().size()),
                      values);
}

} // namespace

std::string filled(std::string_view pattern, std::span<const std::string_view> values)
{
    std::string result;
    std::size_t begin = 0;
    for (std::size_t place = findPlace(pattern, 0); place != std::string_view::npos;
         place = findPlace(pattern, begin)) {
        result += pattern.substr(begin, place - begin);
        const auto number = static_cast<std::size_t>(pattern[place + 1] - '1');
        if (number < values.size())
            result += values[number];
        begin = place + PlaceSize;
    }
    result += pattern.substr(begin);
    return result;
}

std::optional<Recognised> recognised(std::string_view english)
{
    std::vector<std::string_view> values;
    for (const CutPattern &pattern : patterns()) {
        if (matches(pattern, english, values))
            return Recognised{pattern.text, std::move(values)};
    }
    return std::nullopt;
}

} // namespace vlt::contract
