#include "plugins/tables/links/LinkRoles.h"

#include "plugins/tables/cells/Cell.h"
#include "plugins/tables/sites/RoleCandidate.h"
#include "plugins/tables/sites/SampledTable.h"
#include "plugins/tables/values/TransmitterValues.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace vlt::driver {

namespace {

using Words = std::vector<std::string>;

constexpr int MinStrength = 45;   ///< of a name; a sentence has less
constexpr int ClearStrength = 90; ///< of a name whose column has its role whatever its values are
constexpr int FullStrength = 100;
constexpr double MinFit = 0.5; ///< of the values of other columns

/// The role of a column of an end whose name means a role; None if ends have no such role.
Role roleOfEnd(Role role)
{
    switch (role) {
    case Role::MechanicalTilt:
    case Role::ElectricalTilt:
        return Role::Tilt;
    case Role::Band:
        return Role::Frequency;
    case Role::SiteId:
    case Role::SiteName:
    case Role::GroundHeight:
    case Role::AntennaHeight:
    case Role::SeaLevelHeight:
    case Role::Azimuth:
    case Role::Tilt:
    case Role::Frequency:
    case Role::OffsetX:
    case Role::OffsetY:
    case Role::Diameter:
        return role;
    default:
        return Role::None;
    }
}

bool isOfLink(Role role)
{
    return role == Role::LinkName || role == Role::Length || role == Role::Frequency ||
           role == Role::Band || role == Role::Diameter || role == Role::Repeater;
}

/// Roles of columns that may name both ends: "Distance A-B".
bool mayNameEnds(Role role)
{
    return role == Role::Length || role == Role::Repeater;
}

bool isIdentifier(Role role)
{
    return role == Role::SiteId || role == Role::SiteName;
}

/// Whether a text is a day: numbers with the same separator between them.
bool isDate(std::string_view text)
{
    const std::size_t first = text.find_first_not_of("0123456789");
    if (first == 0 || first == std::string_view::npos ||
        std::string_view("-/.").find(text[first]) == std::string_view::npos)
        return false;
    const std::size_t second = text.find_first_not_of("0123456789", first + 1);
    return second != std::string_view::npos && second > first + 1 && text[second] == text[first];
}

/// The role and end of a name of a mapping: frequencyA, lengthLink; no role if links have none of
/// that name, or if it is one of the position.
std::pair<Role, LinkEndId> statedRole(std::string_view name)
{
    if (name == LinkColumnRole{-1, Role::Length, LinkEndId::None, {}}.name())
        return {Role::Length, LinkEndId::None};
    const Role ofLink = roleOfName(name);
    if (ofLink != Role::None)
        return {isOfLink(ofLink) ? ofLink : Role::None, LinkEndId::None};
    const LinkEndId end = name.ends_with('A') ? LinkEndId::A : LinkEndId::B;
    name.remove_suffix(name.empty() ? 0 : 1);
    return {roleOfEnd(roleOfName(name)), end};
}

using Candidate = RoleCandidate<LinkEndId>;

class Finder
{
public:
    Finder(const TableProfile &table, const FoundEnds &ends, const Vocabulary &vocabulary,
           const StatedRoles &stated)
        : m_table(table, vocabulary, stated)
        , m_ends(ends)
        , m_vocabulary(vocabulary)
    {}

    LinkRoles find()
    {
        for (int field = 0; field < m_table.fieldCount(); ++field) {
            if (!m_ends.points[0].uses(field) && !m_ends.points[1].uses(field) &&
                !m_table.stated().fields.contains(field))
                addCandidates(field);
        }
        useStated();
        assign();
        for (std::size_t end = 0; end < m_roles.ends.size(); ++end)
            fillEnd(end);
        fillLink();
        addCoordinates();
        return std::move(m_roles);
    }

private:
    const LinkColumnName &nameOf(int field) const
    {
        return m_ends.names[static_cast<std::size_t>(field)];
    }

    Words allWords(int field) const
    {
        return linkWords(m_table.profile().nameWithUnit(field), m_vocabulary);
    }

    void addCandidates(int field)
    {
        const LinkColumnName &name = nameOf(field);
        if (name.end != LinkEndId::None) {
            for (const NameMatch &match : matchEndColumn(name, m_vocabulary)) {
                const Role role = roleOfEnd(match.role);
                if (role != Role::None && !(name.words.empty() && mayBeTime(field)))
                    addCandidate(field, match, role, name.end);
            }
        }
        addLinkCandidates(field, allWords(field), name.end != LinkEndId::None);
        if (name.end != LinkEndId::None)
            addLinkCandidates(field, withoutEnds(allWords(field), m_vocabulary), true);
    }

    /// Lets no other column have a stated role.
    void useStated()
    {
        std::erase_if(m_candidates, [this](const Candidate &candidate) {
            return m_table.stated().find(
                       LinkColumnRole{candidate.field, candidate.role, candidate.owner, {}}
                           .name()) != nullptr;
        });
        for (const auto &[name, fields] : m_table.stated().roles) {
            const auto [role, end] = statedRole(name);
            for (const int field : fields) {
                if (field >= 0 && role != Role::None)
                    m_candidates.push_back({field, role, end, ScoreOfStated, true});
            }
        }
    }

    void addLinkCandidates(int field, const Words &words, bool namesEnd)
    {
        for (const NameMatch &match : matchName(words, m_vocabulary)) {
            if (isOfLink(match.role) && (!namesEnd || mayNameEnds(match.role)))
                addCandidate(field, match, match.role, LinkEndId::None);
            else if (isIdentifier(match.role) && !namesEnd)
                addNumberOfLink(field, match);
        }
    }

    /// An id of no end, such as a call sign, names the link if nothing else does.
    void addNumberOfLink(int field, const NameMatch &match)
    {
        constexpr double Score = 40;
        const ColumnFacts &facts = m_table.facts(field);
        if (match.strength >= ClearStrength && facts.distinct * 10 >= facts.filled * 8)
            m_candidates.push_back({field, Role::LinkName, LinkEndId::None, Score});
    }

    /// "Start" and "End" may also be times.
    bool mayBeTime(int field)
    {
        const std::vector<std::string> &cells = m_table.cells(field);
        const auto dates = std::count_if(cells.begin(), cells.end(), [](const std::string &cell) {
            return isDate(trimmed(cell));
        });
        const ColumnFacts &facts = m_table.facts(field);
        return static_cast<std::size_t>(dates) * 2 > facts.filled ||
               (nameOf(field).isWeak && facts.numeric * 2 > facts.filled);
    }

    void addCandidate(int field, const NameMatch &match, Role role, LinkEndId end)
    {
        // an empty column says nothing about dishes or repeaters
        if ((role == Role::Diameter || role == Role::Repeater) && isEmpty(field))
            return;
        const double fit = fitOfValues(field, role);
        if (match.strength < MinStrength || (match.strength < ClearStrength && fit < MinFit))
            return;
        constexpr double PointsOfOtherRole = -10; ///< "Mechanical tilt" as a tilt
        const double points = role == Role::LinkName ? pointsOfLinkName(field)
                              : role != match.role   ? PointsOfOtherRole
                                                     : 0;
        // "Link ID" is no better name of a link than "Link"
        const double strength =
            points +
            (role == Role::LinkName ? std::min(match.strength, FullStrength) : match.strength);
        m_candidates.push_back({field, role, end, strength * (1 + fit) / 2});
    }

    bool isEmpty(int field)
    {
        return m_table.facts(field).filled == 0 &&
               m_table.profile().rowCount <= m_table.cells(field).size();
    }

    /// A name is preferred to an id, an "ID" alone may be any number.
    double pointsOfLinkName(int field) const
    {
        const Words words = allWords(field);
        const auto holds = [&](Role role) {
            return std::any_of(words.begin(), words.end(), [&](const std::string &word) {
                const WordMeaning *meaning = m_vocabulary.find(word);
                return meaning && !meaning->isSite && meaning->roles[std::size_t(role)];
            });
        };
        if (holds(Role::SiteName))
            return 5;
        return !holds(Role::SiteId) ? 0 : words.size() == 1 ? -25 : -5;
    }

    /// The share of the values that can be read in a role.
    double fitOfValues(int field, Role role)
    {
        if (role != Role::Frequency)
            return fitOf(role, m_table.facts(field),
                         unitOfColumn(role, allWords(field), m_vocabulary));
        std::size_t filled = 0;
        std::size_t readable = 0;
        for (const std::string &cell : m_table.cells(field)) {
            const TransmitterValue value = readFrequency(cell, std::nullopt, {});
            filled += value.isAbsent() ? 0 : 1;
            readable += value.number ? 1 : 0;
        }
        return filled > 0 ? static_cast<double>(readable) / static_cast<double>(filled) : MinFit;
    }

    /// Gives the columns their roles; several may be those of a repeater.
    void assign()
    {
        constexpr double ScoreByValues = 1000;
        for (Candidate &candidate : m_candidates) {
            if (isIdentifier(candidate.role) && candidate.field == namedField(candidate.owner))
                candidate.score += ScoreByValues;
        }
        for (const Candidate &chosen : chooseRoles(m_candidates, Role::Repeater))
            addColumn(chosen.field, chosen.role, chosen.owner);
        for (const LinkEndId end : {LinkEndId::A, LinkEndId::B}) {
            const int field = namedField(end);
            if (field >= 0 && std::none_of(m_roles.columns.begin(), m_roles.columns.end(),
                                           [field](const auto &of) { return of.field == field; }))
                addColumn(field, Role::SiteId, end);
        }
        std::sort(m_roles.columns.begin(), m_roles.columns.end(),
                  [](const auto &a, const auto &b) { return a.field < b.field; });
    }

    void addColumn(int field, Role role, LinkEndId end)
    {
        m_roles.columns.push_back({field, role, end, m_table.evidence(field, role)});
    }

    /// The field with the id or name of an end, if its values showed that.
    int namedField(LinkEndId end) const
    {
        return end == LinkEndId::None ? -1 : m_ends.identifiers[end == LinkEndId::A ? 0 : 1];
    }

    /// The first field with a role.
    int fieldOf(LinkEndId end, Role role) const
    {
        const auto found =
            std::find_if(m_roles.columns.begin(), m_roles.columns.end(),
                         [&](const auto &of) { return of.role == role && of.end == end; });
        return found == m_roles.columns.end() ? -1 : found->field;
    }

    QuantityField quantity(int field, std::optional<double> WordMeaning::*unit) const
    {
        return {field, field < 0 ? std::nullopt : unitOfName(allWords(field), unit, m_vocabulary)};
    }

    void fillEnd(std::size_t at)
    {
        const LinkEndId end = at == 0 ? LinkEndId::A : LinkEndId::B;
        const auto field = [&](Role role) { return fieldOf(end, role); };
        LinkEndFields &fields = m_roles.ends[at];
        fields.point = m_ends.points[at];
        fields.identifier = namedField(end);
        for (const LinkColumnRole &column : m_roles.columns) {
            if (fields.identifier < 0 && column.end == end && isIdentifier(column.role))
                fields.identifier = column.field;
        }
        fields.height = quantity(field(Role::AntennaHeight), &WordMeaning::metres);
        if (!fields.height.found())
            fields.seaLevelHeight = seaLevelField(end);
        fields.frequency = quantity(field(Role::Frequency), &WordMeaning::megahertz);
        fields.azimuth = quantity(field(Role::Azimuth), &WordMeaning::degrees);
        fields.tilt = quantity(field(Role::Tilt), &WordMeaning::degrees);
        fields.dx = quantity(field(Role::OffsetX), &WordMeaning::metres);
        fields.dy = quantity(field(Role::OffsetY), &WordMeaning::metres);
    }

    /// A column whose name says that its heights are above sea level, be it of the ground.
    int seaLevelField(LinkEndId end) const
    {
        const auto found =
            std::find_if(m_candidates.begin(), m_candidates.end(), [end](const Candidate &of) {
                return of.role == Role::SeaLevelHeight && of.owner == end;
            });
        return found == m_candidates.end() ? -1 : found->field;
    }

    void fillLink()
    {
        const auto field = [&](Role role) { return fieldOf(LinkEndId::None, role); };
        m_roles.name = field(Role::LinkName);
        m_roles.frequency = quantity(field(Role::Frequency), &WordMeaning::megahertz);
        m_roles.band = quantity(field(Role::Band), &WordMeaning::megahertz);
        m_roles.length = quantity(field(Role::Length), &WordMeaning::metres);
    }

    /// Adds the columns of the positions to the list of roles.
    void addCoordinates()
    {
        std::vector<LinkColumnRole> columns;
        for (std::size_t at = 0; at < m_ends.points.size(); ++at) {
            const LinkEndId end = at == 0 ? LinkEndId::A : LinkEndId::B;
            for (const auto &[field, role] : m_ends.points[at].roles())
                columns.push_back({field, role, end, m_table.evidence(field, role)});
        }
        m_roles.columns.insert(m_roles.columns.begin(), columns.begin(), columns.end());
    }

    SampledTable m_table;
    const FoundEnds &m_ends;
    const Vocabulary &m_vocabulary;
    std::vector<Candidate> m_candidates;
    LinkRoles m_roles;
};

} // namespace

std::string LinkColumnRole::name() const
{
    if (role == Role::Length)
        return "lengthLink";
    const char *letter = end == LinkEndId::A ? "A" : end == LinkEndId::B ? "B" : "";
    return std::string(roleName(role)) + letter;
}

LinkRoles findLinkRoles(const TableProfile &table, const FoundEnds &ends,
                        const Vocabulary &vocabulary, const StatedRoles &stated)
{
    return Finder(table, ends, vocabulary, stated).find();
}

} // namespace vlt::driver
