#include "plugins/tables/table/HeaderBlock.h"

#include "contract/SiteColumns.h"
#include "plugins/tables/roles/NameMatch.h"
#include "plugins/tables/roles/NameWords.h"

#include <algorithm>

namespace vlt::driver {

namespace {

using Texts = std::map<int, std::string>;

bool isNumber(const std::string &word)
{
    return word.find_first_not_of("0123456789") == std::string::npos;
}

/// Whether a phrase says what a column or a group of columns holds.
bool isKnown(const std::string &joinedWords, const Vocabulary &vocabulary)
{
    const WordMeaning *meaning = vocabulary.find(joinedWords);
    return meaning &&
           (meaning->roles.any() || meaning->part || meaning->isEndA || meaning->isEndB ||
            meaning->isSector || meaning->isSite || meaning->isUnit());
}

/// Whether the vocabulary knows all words of a name but for the number or letter of a sector.
bool isUnderstood(const std::string &name, const Vocabulary &vocabulary)
{
    const std::vector<std::string> words = separatedWords(name, vocabulary);
    bool isAnyKnown = false;
    for (std::size_t at = 0; at < words.size();) {
        std::size_t known = 0;
        std::string joined;
        for (std::size_t count = 1;
             count <= vocabulary.longestPhrase() && at + count <= words.size(); ++count) {
            joined += words[at + count - 1];
            known = isKnown(joined, vocabulary) ? count : known;
        }
        if (known == 0 && !isNumber(words[at]) && words[at].size() > 1)
            return false;
        isAnyKnown = isAnyKnown || known > 0;
        at += std::max<std::size_t>(known, 1);
    }
    return isAnyKnown;
}

std::size_t countUnderstood(const Texts &texts, const Vocabulary &vocabulary)
{
    return static_cast<std::size_t>(
        std::count_if(texts.begin(), texts.end(), [&vocabulary](const auto &text) {
            return isUnderstood(text.second, vocabulary);
        }));
}

std::size_t countDistinct(const Texts &texts)
{
    std::set<std::string> distinct;
    for (const auto &[column, text] : texts)
        distinct.insert(folded(text));
    return distinct.size();
}

/// Whether the names are those of a layout that readers of layers know as it is.
bool isKnownLayout(const Texts &names)
{
    return std::any_of(names.begin(), names.end(), [](const auto &name) {
        return contract::transmitterOfColumn(name.second).has_value();
    });
}

/// The groups by column: each text holds up to the next one, but in the row `names` it has a name
/// below it, else it is merged with the empty cells below it and stands for itself.
Texts groupsOver(const Texts &names, const Texts &groups)
{
    const bool isRepeated =
        std::adjacent_find(groups.begin(), groups.end(), [](const auto &a, const auto &b) {
            return a.first + 1 == b.first && a.second == b.second;
        }) != groups.end();
    Texts byColumn = groups;
    if (isRepeated) // it would have been repeated in the further columns as well
        return byColumn;
    int sizeBefore = 0;
    const std::string *firstNameBefore = nullptr;
    for (auto group = groups.begin(); group != groups.end(); ++group) {
        const auto first = names.find(group->first);
        if (first == names.end())
            continue;
        const auto next = std::next(group);
        int end = next == groups.end() ? names.rbegin()->first + 1 : next->first;
        // what follows a last group of the same kind stands for itself
        if (next == groups.end() && firstNameBefore && *firstNameBefore == first->second)
            end = std::min(end, group->first + sizeBefore);
        for (auto name = first; name != names.end() && name->first < end; ++name)
            byColumn[name->first] = group->second;
        sizeBefore = end - group->first;
        firstNameBefore = &first->second;
    }
    return byColumn;
}

/// Whether some names occur more than once, each time in another group.
bool separatesEqualNames(const Texts &names, const Texts &groupsByColumn)
{
    std::map<std::string, std::pair<std::size_t, std::set<std::string>>> uses;
    for (const auto &[column, name] : names) {
        auto &[count, groups] = uses[folded(name)];
        ++count;
        const auto group = groupsByColumn.find(column);
        groups.insert(group == groupsByColumn.end() ? std::string() : group->second);
    }
    return uses.size() < names.size() && std::all_of(uses.begin(), uses.end(), [](const auto &use) {
               return use.second.second.size() == use.second.first;
           });
}

/// Whether a group covers at least two columns.
bool coversSeveral(const Texts &names, const Texts &groupsByColumn)
{
    const std::string *before = nullptr;
    for (const auto &[column, name] : names) {
        const auto group = groupsByColumn.find(column);
        const std::string *text = group == groupsByColumn.end() ? nullptr : &group->second;
        if (text && before && *text == *before)
            return true;
        before = text;
    }
    return false;
}

/// Whether a row holds the groups of the names in the row below it, unlike a title.
bool isGroupRow(const HeaderRow &row, const Texts &names, const Vocabulary &vocabulary)
{
    const std::size_t groupCount = countDistinct(row.texts);
    if (!row.values.empty() || groupCount < 2 || groupCount >= names.size() || isKnownLayout(names))
        return false;
    const Texts groups = groupsOver(names, row.texts);
    return coversSeveral(names, groups) &&
           (countUnderstood(row.texts, vocabulary) * 2 > row.texts.size() ||
            separatesEqualNames(names, groups));
}

/// Whether one of the rows has values in at least half of the named columns.
bool hasValuesBelow(const Texts &names, const HeaderRow *first, const HeaderRow *end)
{
    return std::any_of(first, end, [&names](const HeaderRow &row) {
        const auto count = std::count_if(names.begin(), names.end(), [&row](const auto &name) {
            return row.values.contains(name.first);
        });
        return static_cast<std::size_t>(count) * 2 >= names.size();
    });
}

/// Whether a row holds the names in the groups of the row above it, unlike a row of data.
bool isNameRow(const HeaderRow &row, const HeaderRow *below, const HeaderRow *end,
               const Texts &groups, const Vocabulary &vocabulary)
{
    if (!row.values.empty() || row.texts.size() < 2 || isKnownLayout(groups) ||
        !hasValuesBelow(row.texts, below, end))
        return false;
    const Texts byColumn = groupsOver(row.texts, groups);
    return coversSeveral(row.texts, byColumn) &&
           (countUnderstood(row.texts, vocabulary) * 4 >= row.texts.size() * 3 ||
            separatesEqualNames(row.texts, byColumn));
}

/// The texts of all rows, from the top. Rows that repeat a merged text do not repeat it in the
/// name.
Texts joinedNames(const std::vector<HeaderRow> &rows)
{
    Texts names;
    Texts lastParts;
    const auto append = [&](int column, const std::string &text) {
        std::string &last = lastParts[column];
        if (folded(last) == folded(text))
            return;
        last = text;
        std::string &name = names[column];
        name += (name.empty() ? "" : " ") + text;
    };
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const bool isLowest = i + 1 == rows.size();
        const Texts texts = isLowest ? rows[i].texts : groupsOver(rows.back().texts, rows[i].texts);
        for (const auto &[column, text] : texts)
            append(column, text);
    }
    return names;
}

/// Whether a row has names again, in other words or another language: in columns that hold values
/// in the rows below, most of its texts are names of roles.
bool isOtherNames(const HeaderRow &row, const HeaderRow *below, const HeaderRow *end,
                  const Vocabulary &vocabulary)
{
    constexpr int MinStrength = 45; // a sentence has less
    constexpr std::size_t MinColumns = 2;
    std::size_t overValues = 0;
    std::size_t named = 0;
    for (const auto &[column, text] : row.texts) {
        const auto isValueIn = [at = column](const HeaderRow &other) {
            return other.values.contains(at);
        };
        if (vocabulary.isMissing(text)) // N and A have a meaning each
            return false;
        if (!std::any_of(below, end, isValueIn))
            continue;
        ++overValues;
        const std::vector<NameMatch> matches =
            matchName(separatedWords(text, vocabulary), vocabulary);
        named += std::any_of(matches.begin(), matches.end(),
                             [](const NameMatch &match) { return match.strength >= MinStrength; });
    }
    return row.values.empty() && named >= MinColumns && named * 2 > overValues;
}

/// Whether a text is a unit, in brackets or not: "[m]", "(ft AGL)", "\u00B0". Its first word
/// decides.
bool isUnit(const std::string &text, const Vocabulary &vocabulary)
{
    constexpr std::size_t MaxSize = 24; // bytes; a longer text is a description
    if (text.size() > MaxSize)
        return false;
    const std::vector<std::string> words = nameWords(text);
    if (words.empty())
        return text.find("\u00B0") != std::string::npos || text.find("\u00BA") != std::string::npos;
    const WordMeaning *meaning = vocabulary.find(words.front());
    return meaning && meaning->isUnit();
}

/// The units in a row, by column; nothing unless they are at least half of its cells. The others
/// may be units that no column needs, such as dBm.
Texts unitsIn(const HeaderRow &row, const Vocabulary &vocabulary)
{
    Texts units;
    for (const auto &[column, text] : row.texts) {
        if (isUnit(text, vocabulary))
            units.emplace(column, text);
    }
    return row.values.empty() && units.size() * 2 >= row.texts.size() ? units : Texts();
}

} // namespace

HeaderBlock joinHeader(const std::vector<HeaderRow> &above, const HeaderRow &row,
                       const std::vector<HeaderRow> &below, const Vocabulary &vocabulary)
{
    HeaderBlock block;
    block.rows = {row};
    const HeaderRow *end = below.data() + below.size();
    for (const HeaderRow *next = below.data(); next != end && block.rows.size() < MaxNameRows;
         ++next) {
        const HeaderRow &last = block.rows.back();
        if (next->number != last.number + 1 ||
            !isNameRow(*next, next + 1, end, last.texts, vocabulary))
            break;
        block.rows.push_back(*next);
    }
    for (auto before = above.rbegin(); before != above.rend() && block.rows.size() < MaxNameRows;
         ++before) {
        if (before->number + 1 != block.rows.front().number ||
            !isGroupRow(*before, block.rows.back().texts, vocabulary))
            break;
        block.rows.insert(block.rows.begin(), *before);
    }
    return joinRows(std::move(block.rows), below, vocabulary);
}

HeaderBlock joinRows(std::vector<HeaderRow> rows, const std::vector<HeaderRow> &below,
                     const Vocabulary &vocabulary)
{
    HeaderBlock block;
    block.rows = std::move(rows);
    block.names = joinedNames(block.rows);
    const HeaderRow *end = below.data() + below.size();
    const HeaderRow *next = std::find_if(below.data(), end, [&block](const HeaderRow &other) {
        return other.number > block.rows.back().number;
    });
    if (next != end && isOtherNames(*next, next + 1, end, vocabulary))
        block.furtherRows.push_back(*next++);
    if (next != end)
        block.units = unitsIn(*next, vocabulary);
    if (!block.units.empty())
        block.furtherRows.push_back(*next);
    return block;
}

} // namespace vlt::driver
