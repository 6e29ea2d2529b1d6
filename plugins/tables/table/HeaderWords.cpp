#include "plugins/tables/table/HeaderWords.h"

#include <algorithm>

namespace vlt::driver {

namespace {

bool isUpper(char c)
{
    return c >= 'A' && c <= 'Z';
}

bool isWordByte(char c)
{
    return (c >= 'a' && c <= 'z') || isUpper(c) || (c >= '0' && c <= '9') || (c & 0x80) != 0;
}

} // namespace

std::string lowerCase(std::string_view text)
{
    std::string lower(text);
    std::transform(lower.begin(), lower.end(), lower.begin(),
                   [](char c) { return isUpper(c) ? static_cast<char>(c + ('a' - 'A')) : c; });
    return lower;
}

std::vector<std::string> wordsOf(std::string_view name)
{
    std::vector<std::string> words;
    std::string word;
    char before = ' ';
    for (const char c : name) {
        const bool boundary = isUpper(c) && !isUpper(before) && isWordByte(before);
        if ((!isWordByte(c) || boundary) && !word.empty()) {
            words.push_back(lowerCase(word));
            word.clear();
        }
        if (isWordByte(c))
            word += c;
        before = c;
    }
    if (!word.empty())
        words.push_back(lowerCase(word));
    return words;
}

} // namespace vlt::driver
