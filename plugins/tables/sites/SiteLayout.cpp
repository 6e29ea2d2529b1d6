#include "plugins/tables/sites/SiteLayout.h"

#include "contract/TableTexts.h"
#include "plugins/tables/roles/NameMatch.h"
#include "plugins/tables/sites/SystemNames.h"
#include "plugins/tables/table/HeaderWords.h"
#include "plugins/tables/values/GridReference.h"

#include <algorithm>

namespace vlt::driver {

std::string recogniseFormat(const std::vector<Field> &fields)
{
    bool asset = false;
    bool atoll = false;
    bool mentum = false;
    for (const Field &field : fields) {
        const std::vector<std::string> words = wordsOf(field.name);
        if (words.size() < 3 || words[0] != "transmitter" ||
            words[1].find_first_not_of("0123456789") != std::string::npos)
            continue;
        std::string rest = words[2];
        for (std::size_t i = 3; i < words.size(); ++i)
            rest += ' ' + words[i];
        asset = asset || rest == "ant index" || rest == "down tilt";
        atoll = atoll || rest == "transmitter";
        mentum = mentum || rest == "antenna id" || rest == "mechanical tilt";
    }
    return asset ? "asset" : atoll ? "atoll" : mentum ? "mentum" : "generic";
}

namespace {

/// Whether a name has a word that stands for an end of a link, A or B.
bool namesEnd(const std::vector<std::string> &words, bool WordMeaning::*end,
              const Vocabulary &vocabulary)
{
    return std::any_of(words.begin(), words.end(), [&](const std::string &word) {
        const WordMeaning *meaning = vocabulary.find(word);
        return meaning && meaning->*end && meaning->roles.none();
    });
}

bool namesCoordinate(const std::vector<std::string> &words, const Vocabulary &vocabulary)
{
    const std::vector<NameMatch> matches = matchName(words, vocabulary);
    return std::any_of(matches.begin(), matches.end(), [](const NameMatch &match) {
        return match.role >= Role::Longitude && match.role <= Role::Y;
    });
}

/// Whether the columns of a position name one end of a link, and other coordinates the other end.
bool isLinkEnd(const PointFields &point, const FieldWords &words, const Vocabulary &vocabulary)
{
    if (!point.x.found())
        return false;
    const auto &name = words[static_cast<std::size_t>(point.x.value)];
    const bool isA = namesEnd(*name, &WordMeaning::isEndA, vocabulary);
    if (!isA && !namesEnd(*name, &WordMeaning::isEndB, vocabulary))
        return false;
    const auto other = isA ? &WordMeaning::isEndB : &WordMeaning::isEndA;
    return std::any_of(words.begin(), words.end(), [&](const auto &ofField) {
        return ofField && namesEnd(*ofField, other, vocabulary) &&
               namesCoordinate(*ofField, vocabulary);
    });
}

} // namespace

std::optional<UnreadGrid> findUnreadGrid(const std::vector<Field> &fields)
{
    for (const Field &field : fields) {
        for (const auto &[isOfGrid, grid] :
             {std::pair(&isMgrsReference, "MGRS"), std::pair(&isMaidenheadSquare, "Maidenhead")}) {
            const auto count = std::count_if(field.samples.begin(), field.samples.end(), isOfGrid);
            if (count > 0 && static_cast<std::size_t>(count) * 10 >= field.samples.size() * 8)
                return UnreadGrid{field.name, grid};
        }
    }
    return std::nullopt;
}

SiteLayout recogniseSiteLayout(const TableProfile &table, const Vocabulary &vocabulary,
                               const StatedRoles &stated)
{
    SiteLayout layout;
    FieldWords words;
    for (const Field &field : table.fields)
        words.emplace_back(separatedWords(field.name, vocabulary));
    layout.point = findPoint(words, table.fields, vocabulary, stated);
    if (!stated.find("x") && !stated.find("y"))
        useNorthX(table, vocabulary, layout.point, layout.systemProblem);
    layout.isLinkEnd = !stated.find("x") && isLinkEnd(layout.point, words, vocabulary);
    layout.format = recogniseFormat(table.fields);
    if (!layout.point.found())
        layout.unreadGrid = findUnreadGrid(table.fields);
    layout.unit = findUnit(layout.point, table.fields, vocabulary);
    findSystem(table, layout.point, vocabulary, layout);
    layout.roles = findSiteRoles(table, layout.point, vocabulary, stated);
    if (layout.unit == CoordinateUnit::Degrees && areWholeDegrees(layout.point, table.fields)) {
        const auto name = [&table](int field) {
            return table.fields[static_cast<std::size_t>(field)].name;
        };
        layout.roles.problems.push_back(
            {0,
             {},
             false,
             contract::formatted("MESS_TAB_WHOLE_DEGREES",
                                 {name(layout.point.xField()), name(layout.point.yField())})});
    }
    return layout;
}

int siteSuitability(const TableProfile &start, const Vocabulary &vocabulary)
{
    constexpr uint64_t MinRows = 3;
    const SiteLayout layout = recogniseSiteLayout(start, vocabulary);
    const int points = (holdsPositions(layout.point, start.fields) ? 4 : 0) +
                       (layout.roles.transmitters.empty() ? 0 : 2);
    return points + (points > 0 && start.rowCount >= MinRows ? 1 : 0);
}

} // namespace vlt::driver
