#include "plugins/tables/links/ContrastedEnds.h"

#include "plugins/tables/cells/Cell.h"
#include "plugins/tables/cells/Numbers.h"
#include "plugins/tables/roles/NameWords.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <numeric>
#include <optional>
#include <set>

namespace vlt::driver {

namespace {

using Words = std::vector<std::string>;

/// The columns of one position: the words that only their names have, and how often these names
/// occurred before.
struct Group
{
    std::string words; ///< separated by blanks
    int occurrence = 0;
    std::set<std::size_t> fields; ///< of its coordinates
    bool hasX = false;
    bool hasY = false;

    bool isWhole() const { return hasX && hasY; }
};

std::string joined(const Words &words)
{
    return std::accumulate(
        words.begin(), words.end(), std::string(),
        [](const std::string &a, const std::string &b) { return a.empty() ? b : a + ' ' + b; });
}

/// The words without those of a group, if all of them are there.
std::optional<Words> without(const Words &words, const Words &ofGroup)
{
    Words rest = words;
    for (const std::string &word : ofGroup) {
        const auto found = std::find(rest.begin(), rest.end(), word);
        if (found == rest.end())
            return std::nullopt;
        rest.erase(found);
    }
    return rest;
}

class Contrast
{
public:
    Contrast(const TableProfile &table, const Vocabulary &vocabulary)
        : m_table(table)
        , m_vocabulary(vocabulary)
    {
        std::map<std::string, int> counts;
        for (std::size_t i = 0; i < table.fields.size(); ++i) {
            const std::string name = table.nameWithUnit(static_cast<int>(i));
            m_words.push_back(linkWords(name, vocabulary));
            m_occurrences.push_back(counts[folded(name)]++);
            addToGroups(i);
        }
        for (std::size_t i = 0; i < table.fields.size(); ++i)
            m_isRepeated.push_back(counts[folded(table.nameWithUnit(static_cast<int>(i)))] > 1);
    }

    FoundEnds find() const
    {
        std::vector<Group> whole;
        std::copy_if(m_groups.begin(), m_groups.end(), std::back_inserter(whole),
                     [](const Group &group) { return group.isWhole(); });
        if (whole.size() != 2)
            return {};
        removeCommonWords(whole[0], whole[1]);
        FoundEnds ends;
        ends.names = names(whole[0], whole[1]);
        for (std::size_t end = 0; end < ends.points.size(); ++end) {
            FieldWords words(ends.names.size());
            for (std::size_t i = 0; i < words.size(); ++i) {
                if (ends.names[i].end == (end == 0 ? LinkEndId::A : LinkEndId::B))
                    words[i] = ends.names[i].words;
            }
            ends.points[end] = findPoint(words, m_table.fields, m_vocabulary);
        }
        return ends.found() && areApart(ends) ? ends : FoundEnds();
    }

private:
    void addToGroups(std::size_t field)
    {
        constexpr std::size_t MaxGroups = 8; // more of them are no ends
        const Words &words = m_words[field];
        const std::vector<NameMatch> matches = matchName(words, m_vocabulary);
        const auto best = std::max_element(matches.begin(), matches.end(),
                                           [](const NameMatch &a, const NameMatch &b) {
                                               return std::pair(isCoordinate(a.role), a.strength) <
                                                      std::pair(isCoordinate(b.role), b.strength);
                                           });
        if (best == matches.end() || !isCoordinate(best->role))
            return;
        const std::string own = ownWords(words);
        const int occurrence = m_occurrences[field];
        auto group = std::find_if(m_groups.begin(), m_groups.end(), [&](const Group &of) {
            return of.words == own && of.occurrence == occurrence;
        });
        if (group == m_groups.end()) {
            if (m_groups.size() >= MaxGroups)
                return;
            group = m_groups.insert(m_groups.end(), Group{own, occurrence, {}});
        }
        const bool isX =
            best->role == Role::Longitude || best->role == Role::Easting || best->role == Role::X;
        group->fields.insert(field);
        group->hasX = group->hasX || isX;
        group->hasY = group->hasY || !isX;
    }

    static bool isCoordinate(Role role) { return role >= Role::Longitude && role <= Role::Y; }

    /// The words that name neither a coordinate nor a site.
    std::string ownWords(Words words) const
    {
        std::erase_if(words, [this](const std::string &word) {
            const WordMeaning *meaning = m_vocabulary.find(word);
            const bool isEnd = meaning && (meaning->isEndA || meaning->isEndB);
            return meaning && !isEnd && (meaning->isUnit() || namesCoordinate(*meaning));
        });
        return joined(withoutSite(std::move(words)));
    }

    static bool namesCoordinate(const WordMeaning &meaning)
    {
        for (int role = static_cast<int>(Role::Longitude); role <= static_cast<int>(Role::Y);
             ++role) {
            if (meaning.roles[static_cast<std::size_t>(role)])
                return true;
        }
        return false;
    }

    Words withoutSite(Words words) const
    {
        std::erase_if(words, [this](const std::string &word) {
            const WordMeaning *meaning = m_vocabulary.find(word);
            return meaning && (meaning->isSite || meaning->part) && !meaning->isEndA &&
                   !meaning->isEndB;
        });
        return words;
    }

    /// Columns of other values need not have the words that both positions have.
    static void removeCommonWords(Group &a, Group &b)
    {
        const Words ofA = nameWords(a.words);
        const Words ofB = nameWords(b.words);
        const auto difference = [](const Words &words, const Words &others) {
            Words rest;
            std::copy_if(words.begin(), words.end(), std::back_inserter(rest),
                         [&others](const std::string &word) {
                             return std::find(others.begin(), others.end(), word) == others.end();
                         });
            return joined(rest);
        };
        a.words = difference(ofA, ofB);
        b.words = difference(ofB, ofA);
    }

    Names names(const Group &a, const Group &b) const
    {
        Names names(m_words.size());
        for (std::size_t i = 0; i < m_words.size(); ++i)
            names[i].words = m_words[i];
        if (a.words == b.words) {
            for (std::size_t i = 0; i < m_words.size(); ++i)
                names[i].end = !m_isRepeated[i]                   ? LinkEndId::None
                               : m_occurrences[i] == a.occurrence ? LinkEndId::A
                               : m_occurrences[i] == b.occurrence ? LinkEndId::B
                                                                  : LinkEndId::None;
            return names;
        }
        setNamedEnd(names, LinkEndId::A, a);
        setNamedEnd(names, LinkEndId::B, b);
        if (a.words.empty())
            setOtherEnd(names, LinkEndId::A, a);
        if (b.words.empty())
            setOtherEnd(names, LinkEndId::B, b);
        return names;
    }

    /// Gives an end the columns whose names have its words.
    static void setNamedEnd(Names &names, LinkEndId end, const Group &group)
    {
        const Words words = nameWords(group.words);
        for (LinkColumnName &name : names) {
            const std::optional<Words> rest =
                words.empty() ? std::nullopt : without(name.words, words);
            if (!rest || name.end != LinkEndId::None)
                continue;
            name.end = end;
            name.words = *rest;
        }
    }

    /// Gives an end without a word of its own its coordinates and the columns that the other end
    /// has, too.
    void setOtherEnd(Names &names, LinkEndId end, const Group &group) const
    {
        std::set<Words> ofOther;
        for (const LinkColumnName &name : names) {
            if (name.end == LinkEndId::None)
                continue;
            ofOther.insert(name.words);
            if (Words plain = withoutSite(name.words); !plain.empty())
                ofOther.insert(std::move(plain));
        }
        for (std::size_t i = 0; i < names.size(); ++i) {
            if (names[i].end == LinkEndId::None &&
                (group.fields.contains(i) || ofOther.contains(names[i].words) ||
                 ofOther.contains(withoutSite(names[i].words))))
                names[i].end = end;
        }
    }

    /// Whether the positions are in one unit, and most of them differ by more than two ways of
    /// stating the same site do.
    bool areApart(const FoundEnds &ends) const
    {
        const auto unit = [&](const PointFields &point) {
            return findUnit(point, m_table.fields, m_vocabulary);
        };
        if (unit(ends.points[0]) != unit(ends.points[1]))
            return false;
        constexpr double MinDegrees = 0.002;
        constexpr double MinMetres = 200;
        const double minimum =
            unit(ends.points[0]) == CoordinateUnit::Meters ? MinMetres : MinDegrees;
        std::size_t rows = 0;
        std::size_t apart = 0;
        for (std::size_t row = 0; row < m_table.sampledColumns.front().size(); ++row) {
            const auto differ = [&](int fieldA, int fieldB) {
                const std::string &a = cell(fieldA, row);
                const std::string &b = cell(fieldB, row);
                const std::optional<double> numberA = parseEitherNumber(trimmed(a));
                const std::optional<double> numberB = parseEitherNumber(trimmed(b));
                return numberA && numberB ? std::abs(*numberA - *numberB) > minimum : a != b;
            };
            const PointFields &a = ends.points[0];
            const PointFields &b = ends.points[1];
            if (cell(a.xField(), row).empty() || cell(b.xField(), row).empty())
                continue;
            ++rows;
            apart += differ(a.xField(), b.xField()) || differ(a.yField(), b.yField()) ? 1 : 0;
        }
        return apart * 2 > rows;
    }

    const std::string &cell(int field, std::size_t row) const
    {
        return m_table.sampledColumns[static_cast<std::size_t>(field)][row];
    }

    const TableProfile &m_table;
    const Vocabulary &m_vocabulary;
    std::vector<Words> m_words;
    std::vector<int> m_occurrences; ///< of equal names before each field
    std::vector<bool> m_isRepeated; ///< the name occurs more than once
    std::vector<Group> m_groups;
};

} // namespace

FoundEnds findContrastedEnds(const TableProfile &table, const Vocabulary &vocabulary)
{
    return Contrast(table, vocabulary).find();
}

} // namespace vlt::driver
