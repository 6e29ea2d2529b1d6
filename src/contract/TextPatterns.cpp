#include "contract/TextPatterns.h"

#include <algorithm>

namespace vlt::contract {

namespace {

constexpr size_t PlaceSize = 2; ///< of "%1"

/// A pattern cut at its places: n places lie between n + 1 pieces of words.
struct CutPattern
{
    const Text *text = nullptr;
    std::vector<std::string_view> words;
    size_t wordsSize = 0;
};

size_t findPlace(std::string_view pattern, size_t from)
{
    size_t at = pattern.find('%', from);
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
    size_t begin = 0;
    for (size_t place = findPlace(pattern, 0); place != std::string_view::npos;
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
        list.reserve(Texts.size());
        for (const Text &text : Texts)
            list.push_back(cut(text));
        std::stable_sort(list.begin(), list.end(), [](const CutPattern &a, const CutPattern &b) {
            return a.wordsSize > b.wordsSize;
        });
        return list;
    }();
    return all;
}

/// Words between two places are looked for from the end: a cell's text, which may hold anything,
/// is never the last value.
bool matches(const CutPattern &pattern, std::string_view english,
             std::vector<std::string_view> &values)
{
    const std::vector<std::string_view> &words = pattern.words;
    if (english.size() < pattern.wordsSize || !english.starts_with(words.front()))
        return false;
    if (words.size() == 1)
        return english.size() == words.front().size();
    if (!english.ends_with(words.back()))
        return false;
    std::string_view rest = english.substr(
        words.front().size(), english.size() - words.front().size() - words.back().size());
    values.assign(words.size() - 1, {});
    for (size_t i = words.size() - 2; i > 0; --i) {
        const size_t at = rest.rfind(words[i]);
        if (at == std::string_view::npos)
            return false;
        values[i] = rest.substr(at + words[i].size());
        rest = rest.substr(0, at);
    }
    values.front() = rest;
    return true;
}

} // namespace

std::string formatted(const Text &text, std::initializer_list<std::string_view> values)
{
    const std::vector<std::string_view> words = cut(text).words;
    std::string result(words.front());
    for (size_t i = 1; i < words.size(); ++i) {
        if (i <= values.size())
            result += values.begin()[i - 1];
        result += words[i];
    }
    return result;
}

std::optional<Recognised> recognised(std::string_view english)
{
    std::vector<std::string_view> values;
    for (const CutPattern &pattern : patterns())
        if (matches(pattern, english, values))
            return Recognised{pattern.text, std::move(values)};
    return std::nullopt;
}

} // namespace vlt::contract
