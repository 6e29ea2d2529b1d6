#include "plugins/tables/sites/SystemNames.h"

#include "plugins/tables/roles/NameWords.h"

#include <algorithm>

namespace vlt::driver {

namespace {

using Words = std::vector<std::string>;

bool holds(const Words &text, const Words &name)
{
    return !name.empty() &&
           std::search(text.begin(), text.end(), name.begin(), name.end()) != text.end();
}

/// The texts in which a system may be named, as words.
std::vector<Words> textsOf(const TableProfile &table, const PointFields &point)
{
    std::vector<Words> texts;
    for (const std::string &title : table.header.titles)
        texts.push_back(nameWords(title));
    for (const int field : {point.xField(), point.yField()}) {
        if (field >= 0)
            texts.push_back(nameWords(table.fields[static_cast<std::size_t>(field)].name));
    }
    return texts;
}

} // namespace

std::vector<std::string> systemsNamed(const TableProfile &table, const PointFields &point,
                                      const Vocabulary &vocabulary)
{
    const std::vector<Words> texts = textsOf(table, point);
    std::vector<std::pair<std::size_t, std::string>> found; // number of words, code
    for (const NamedSystem &system : vocabulary.systems()) {
        std::size_t longest = 0;
        for (const Words &name : system.names) {
            const bool isNamed = std::any_of(texts.begin(), texts.end(),
                                             [&](const Words &text) { return holds(text, name); });
            longest = isNamed ? std::max(longest, name.size()) : longest;
        }
        if (longest > 0)
            found.emplace_back(longest, system.epsg);
    }
    std::stable_sort(found.begin(), found.end(),
                     [](const auto &a, const auto &b) { return a.first > b.first; });
    std::vector<std::string> codes;
    codes.reserve(found.size());
    for (auto &[words, code] : found)
        codes.push_back(std::move(code));
    return codes;
}

} // namespace vlt::driver
