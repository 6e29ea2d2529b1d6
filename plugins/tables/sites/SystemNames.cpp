#include "plugins/tables/sites/SystemNames.h"

#include "contract/TableTexts.h"
#include "plugins/tables/cells/Cell.h"
#include "plugins/tables/cells/GroupedNumber.h"
#include "plugins/tables/roles/NameWords.h"

#include <algorithm>

namespace vlt::driver {

namespace {

using Words = std::vector<std::string>;

/// A number of metres; nothing for other texts.
std::optional<double> coordinateIn(std::string_view text)
{
    const std::optional<double> number = parseEitherNumber(trimmed(text));
    return number ? number : parseGroupedNumber(trimmed(text));
}

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

/// The systems that one of some texts names, with the number of words of the name.
std::vector<std::pair<std::size_t, std::string>> namedIn(const std::vector<Words> &texts,
                                                         const std::vector<NamedSystem> &systems)
{
    std::vector<std::pair<std::size_t, std::string>> found;
    for (const NamedSystem &system : systems) {
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
    return found;
}

bool holdsWord(const TableProfile &table, int field, const char *word)
{
    const Words words = nameWords(table.fields[static_cast<std::size_t>(field)].name);
    return std::find(words.begin(), words.end(), word) != words.end();
}

/// The sampled positions as they stand in the columns X and Y.
std::vector<std::pair<double, double>> sampledPositions(const TableProfile &table,
                                                        const PointFields &point)
{
    std::vector<std::pair<double, double>> positions;
    const auto &cellsX = table.sampledColumns[static_cast<std::size_t>(point.x.value)];
    const auto &cellsY = table.sampledColumns[static_cast<std::size_t>(point.y.value)];
    for (std::size_t row = 0; row < cellsX.size(); ++row) {
        const auto x = coordinateIn(cellsX[row]);
        const auto y = coordinateIn(cellsY[row]);
        if (x && y)
            positions.emplace_back(*x * point.scale.factor, *y * point.scale.factor);
    }
    return positions;
}

} // namespace

void useNorthX(const TableProfile &table, const Vocabulary &vocabulary, PointFields &point,
               std::string &problem)
{
    if (point.pair >= 0 || !point.found() || point.x.inParts() ||
        !holdsWord(table, point.x.value, "x") || !holdsWord(table, point.y.value, "y"))
        return;
    const auto named = namedIn(textsOf(table, point), vocabulary.systems());
    if (named.empty())
        return;
    const auto positions = sampledPositions(table, point);
    for (const NamedSystem &system : vocabulary.systems()) {
        const bool isNamed = std::any_of(named.begin(), named.end(), [&system](const auto &of) {
            return of.second == system.epsg;
        });
        if (!isNamed || !system.northX)
            continue;
        std::size_t asNamed = 0;
        std::size_t exchanged = 0;
        for (const auto &[x, y] : positions) {
            asNamed += system.northX->holds(x, y) ? 1 : 0;
            exchanged += system.northX->holds(y, x) ? 1 : 0;
        }
        if (exchanged * 2 <= positions.size())
            continue;
        if (asNamed * 2 > positions.size())
            problem = contract::formatted(
                "MESS_TAB_NORTH_X",
                {table.fields[static_cast<std::size_t>(point.x.value)].name,
                 table.fields[static_cast<std::size_t>(point.y.value)].name, system.epsg});
        std::swap(point.x, point.y);
        return;
    }
}

std::string datumNamed(const std::string &text, const Vocabulary &vocabulary)
{
    const auto found = namedIn({nameWords(text)}, vocabulary.datums());
    return found.empty() ? std::string() : found.front().second;
}

std::vector<std::string> systemsNamed(const TableProfile &table, const PointFields &point,
                                      const Vocabulary &vocabulary)
{
    auto found = namedIn(textsOf(table, point), vocabulary.systems());
    std::vector<std::string> codes;
    codes.reserve(found.size());
    for (auto &[words, code] : found)
        codes.push_back(std::move(code));
    return codes;
}

} // namespace vlt::driver
