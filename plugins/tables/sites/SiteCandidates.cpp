#include "plugins/tables/sites/SiteCandidates.h"

#include "plugins/tables/cells/Cell.h"
#include "plugins/tables/roles/BracketUnit.h"
#include "plugins/tables/roles/NameMatch.h"
#include "plugins/tables/sites/SectorSuffix.h"

#include <algorithm>
#include <map>
#include <numeric>
#include <set>
#include <tuple>

namespace vlt::driver {

namespace {

constexpr double MinFit = 0.5;
constexpr int PointsOfLevel = 30;
constexpr int PointsOfCounter = 20;
constexpr int MinOwnWord = 90; ///< strength of a name that says nothing else
constexpr std::size_t MaxUnfit = 4;

/// Roles of which several columns, one per transmitter, make a table a numbered one.
bool countsTransmitters(Role role)
{
    return role == Role::Azimuth || role == Role::AntennaHeight;
}

class Finder
{
public:
    Finder(SampledTable &table, const PointFields &point, const std::vector<std::string> &places)
        : m_table(table)
        , m_point(point)
        , m_places(places)
    {}

    SiteCandidates find()
    {
        for (int field = 0; field < m_table.fieldCount(); ++field) {
            if (!m_point.uses(field) && !m_table.stated().fields.contains(field))
                addCandidates(field);
        }
        addStated();
        useLevels();
        addCounter();
        dropStated();
        numberBands();
        numberRepeatedNames();
        numberSequences();
        numberFirstOfSeries();
        const bool areNumbered = dropNumbersOfOthers();
        return {std::move(m_candidates), areNumbered, std::move(m_bandsMHz),
                std::move(m_unfitAzimuths)};
    }

private:
    void addCandidates(int field)
    {
        const std::vector<std::string> &words = m_table.words(field);
        std::vector<NameMatch> matches = matchName(words, m_table.vocabulary());
        const auto ofRows = matchKindOfRows(words, m_table.vocabulary());
        const bool isBeam = matches.size() == 1 && matches[0].role == Role::BeamWidth;
        if (ofRows && (matches.empty() || (isBeam && !areWidths(m_table.facts(field)))))
            matches = {*ofRows};
        for (const NameMatch &match : matches) {
            if (!isRoleOfSite(match.role) && !isRoleOfTransmitter(match.role))
                continue;
            if (!suitsUnitInBrackets(match.role, m_table.profile().nameWithUnit(field),
                                     m_table.vocabulary()))
                continue;
            const double fit = fitOf(match.role, m_table.facts(field),
                                     unitOfColumn(match.role, words, m_table.vocabulary()));
            if (fit < MinFit && match.role == Role::Azimuth && match.strength >= MinOwnWord &&
                m_unfitAzimuths.size() < MaxUnfit)
                m_unfitAzimuths.push_back(field);
            if (fit < MinFit)
                continue;
            m_candidates.push_back({field, match.role, match.sector, match.strength * fit});
            if (match.band > 0)
                m_bandOf[{field, match.role}] = match.band;
        }
    }

    /// Whether the values of a column that is called "Beam" are beam widths and no numbers of
    /// beams.
    static bool areWidths(const ColumnFacts &facts)
    {
        constexpr double MinWidthDeg = 10;
        constexpr double MinSureWidthDeg = 30;
        return facts.numeric > 0 && facts.minimum >= MinWidthDeg &&
               (facts.minimum >= MinSureWidthDeg || facts.distinct < facts.filled);
    }

    /// Numbers columns by their frequency bands, and by the sectors within these.
    void numberBands()
    {
        const auto bandOf = [this](const SiteCandidate &candidate) {
            const auto band = m_bandOf.find({candidate.field, candidate.role});
            return band == m_bandOf.end() ? 0 : band->second;
        };
        std::map<std::pair<int, int>, int> numbers; // by band and sector
        std::set<int> bands;
        for (const SiteCandidate &candidate : m_candidates) {
            const int band = bandOf(candidate);
            if (countsTransmitters(candidate.role) && band == 0 && candidate.owner >= 0)
                return; // the columns are numbered in another manner
            if (band > 0) {
                bands.insert(band);
                numbers.emplace(std::pair(band, candidate.owner), 0);
            }
        }
        if (bands.size() < 2)
            return;
        int number = 0;
        for (auto &[bandAndSector, ofTransmitter] : numbers) {
            ofTransmitter = ++number;
            m_bandsMHz[number] = bandAndSector.first;
        }
        for (SiteCandidate &candidate : m_candidates) {
            if (const int band = bandOf(candidate); band > 0)
                candidate.owner = numbers[{band, candidate.owner}];
        }
    }

    /// Adds the stated roles. The columns of a list belong to the transmitters whose numbers the
    /// other columns have, in their order; without such numbers they count from 1.
    void addStated()
    {
        std::set<int> found;
        std::size_t longest = 0;
        for (const SiteCandidate &candidate : m_candidates) {
            if (isRoleOfTransmitter(candidate.role) && candidate.owner >= 0)
                found.insert(candidate.owner);
        }
        for (const auto &[name, fields] : m_table.stated().roles) {
            const Role role = roleOfName(name);
            longest = std::max(longest, fields.size());
            for (const int field : fields) {
                if (field < 0 || fields.size() < 2 || !isRoleOfTransmitter(role))
                    continue;
                for (const NameMatch &match :
                     matchName(m_table.words(field), m_table.vocabulary())) {
                    if (match.role == role && match.sector >= 0)
                        found.insert(match.sector);
                }
            }
        }
        std::vector<int> numbers(found.begin(), found.end());
        if (numbers.size() < longest) {
            numbers.resize(longest);
            std::iota(numbers.begin(), numbers.end(), 1);
        }
        for (const auto &[name, fields] : m_table.stated().roles) {
            const Role role = roleOfName(name);
            const bool isList = fields.size() > 1 && isRoleOfTransmitter(role);
            for (std::size_t i = 0; i < fields.size(); ++i) {
                if (fields[i] < 0 || (!isRoleOfSite(role) && !isRoleOfTransmitter(role)))
                    continue;
                m_candidates.push_back(
                    {fields[i], role, isList ? numbers[i] : -1, ScoreOfStated, true});
                if (isList)
                    addStatedBand(fields[i], role, numbers[i]);
            }
        }
    }

    void addStatedBand(int field, Role role, int number)
    {
        for (const NameMatch &match : matchName(m_table.words(field), m_table.vocabulary())) {
            if (match.role == role && match.band > 0)
                m_bandsMHz[number] = match.band;
        }
    }

    /// Drops the candidates for roles that are stated.
    void dropStated()
    {
        std::erase_if(m_candidates, [this](const SiteCandidate &candidate) {
            // a tilt of no kind would stand for the mechanical one
            const Role role = candidate.role == Role::Tilt ? Role::MechanicalTilt : candidate.role;
            return !candidate.isStated && (m_table.stated().find(roleName(candidate.role)) ||
                                           m_table.stated().find(roleName(role)));
        });
    }

    /// A name or an id belongs to sites or to sectors, whatever its column is called: the values
    /// at each position decide.
    void useLevels()
    {
        const bool hasAzimuths = std::any_of(
            m_candidates.begin(), m_candidates.end(),
            [](const SiteCandidate &candidate) { return candidate.role == Role::Azimuth; });
        for (SiteCandidate &candidate : m_candidates) {
            if (isName(candidate) && !candidate.isStated)
                adjustToLevel(candidate, hasAzimuths);
        }
        for (SiteCandidate &candidate : m_candidates) {
            if (candidate.role == Role::SiteId && !candidate.isStated && hasAzimuths &&
                holdsIdsOfSectors(candidate.field))
                candidate.role =
                    areSitesNamedBeside(candidate.field) ? Role::SectorId : Role::SiteName;
        }
        std::set<int> namesSites;
        for (const SiteCandidate &candidate : m_candidates) {
            if (isName(candidate) && candidate.role != Role::SectorId)
                namesSites.insert(candidate.field);
        }
        for (SiteCandidate &candidate : m_candidates) {
            const bool isOnlyName = namesSites.empty() || (namesSites.size() == 1 &&
                                                           namesSites.contains(candidate.field));
            if (isOnlyName && !candidate.isStated && candidate.role == Role::SectorId &&
                candidate.owner < 0 && (!hasAzimuths || namesHoldSector(candidate.field)))
                candidate.role = Role::SiteName;
        }
    }

    /// Whether ids differ from row to row, but at each position only by a sector at their end.
    bool holdsIdsOfSectors(int field)
    {
        const ColumnFacts &facts = m_table.facts(field);
        return facts.distinct == facts.filled &&
               levelOf(m_table.cells(field), m_places) == Level::Sector && namesHoldSector(field);
    }

    bool areSitesNamedBeside(int field) const
    {
        return std::any_of(
            m_candidates.begin(), m_candidates.end(), [&](const SiteCandidate &other) {
                return other.field != field &&
                       (other.role == Role::SiteId || other.role == Role::SiteName) &&
                       levelOf(m_table.cells(other.field), m_places) == Level::Site;
            });
    }

    static bool isName(const SiteCandidate &candidate)
    {
        return candidate.role == Role::SiteId || candidate.role == Role::SiteName ||
               candidate.role == Role::SectorId;
    }

    bool namesASite(int field) const
    {
        const std::vector<std::string> &words = m_table.words(field);
        return std::any_of(words.begin(), words.end(), [this](const std::string &word) {
            const WordMeaning *meaning = m_table.vocabulary().find(word);
            return meaning && meaning->isSite;
        });
    }

    void adjustToLevel(SiteCandidate &candidate, bool hasAzimuths)
    {
        const Level level = levelOf(m_table.cells(candidate.field), m_places);
        const bool ofSector = candidate.role == Role::SectorId;
        if (ofSector && countsWithinPlaces(candidate.field))
            candidate.score += PointsOfCounter;
        if (level == Level::Area)
            candidate.score -= ofSector ? 0 : PointsOfLevel;
        else if (level == Level::Site && ofSector && candidate.owner < 0)
            candidate.role = Role::SiteName;
        else if (level == Level::Site)
            candidate.score += PointsOfLevel;
        else if (level == Level::Sector && !ofSector && hasAzimuths &&
                 !namesASite(candidate.field) && !namesHoldSector(candidate.field))
            candidate.role = Role::SectorId;
    }

    /// Whether the rows of each place are numbered from 1, and several places have several rows. A
    /// row without a place belongs to the one above.
    bool countsWithinPlaces(int field) const
    {
        constexpr std::size_t MinPlaces = 2;
        std::map<std::string_view, std::size_t> rowsOf;
        std::size_t repeated = 0;
        std::string_view place;
        for (std::size_t row = 0; row < m_table.cells(field).size(); ++row) {
            place = m_places[row].empty() ? place : m_places[row];
            const std::size_t number = ++rowsOf[place];
            if (trimmed(m_table.cells(field)[row]) != std::to_string(number))
                return false;
            repeated += number == 2 ? 1 : 0;
        }
        return repeated >= MinPlaces;
    }

    /// Without a column that names the sectors, one that numbers them does, whatever its name is.
    void addCounter()
    {
        const bool namesSectors =
            std::any_of(m_candidates.begin(), m_candidates.end(),
                        [](const SiteCandidate &of) { return of.role == Role::SectorId; });
        std::set<int> known;
        for (const SiteCandidate &candidate : m_candidates)
            known.insert(candidate.field);
        for (int field = 0; !namesSectors && field < int(m_table.fieldCount()); ++field) {
            if (m_point.uses(field) || known.contains(field) || !countsWithinPlaces(field))
                continue;
            m_candidates.push_back({field, Role::SectorId, -1, PointsOfCounter});
            return;
        }
    }

    bool namesHoldSector(int field) const
    {
        std::vector<std::string> bases;
        for (const std::string &cell : m_table.cells(field))
            bases.emplace_back(withoutSector(trimmed(cell), m_table.vocabulary()));
        return levelOf(bases, m_places) == Level::Site;
    }

    /// Numbers columns of transmitters that have the same name in the header: Azimuth, Azimuth.
    void numberRepeatedNames()
    {
        std::map<std::pair<Role, std::string>, std::vector<SiteCandidate *>> byName;
        for (SiteCandidate &candidate : m_candidates) {
            if (isRoleOfTransmitter(candidate.role) && candidate.owner < 0 && !candidate.isStated)
                byName[{candidate.role, m_table.profile().nameInGroup(candidate.field)}].push_back(
                    &candidate);
        }
        for (const auto &[name, same] : byName) {
            if (same.size() < 2)
                continue;
            int number = 0;
            for (SiteCandidate *candidate : same)
                candidate->owner = ++number;
        }
    }

    /// Numbers columns of transmitters whose names differ by the words of a sequence alone: X, Y,
    /// Z.
    void numberSequences()
    {
        constexpr std::size_t MaxWords = 2; // "1st" is two words
        using Key = std::tuple<Role, std::size_t, std::string>;
        std::map<Key, std::map<int, SiteCandidate *>> columns; // by number
        for (SiteCandidate &candidate : m_candidates) {
            if (!isRoleOfTransmitter(candidate.role) || candidate.owner >= 0 || candidate.isStated)
                continue;
            const std::vector<std::string> &words = m_table.words(candidate.field);
            for (std::size_t first = 0; first < words.size(); ++first) {
                std::string joined;
                for (std::size_t end = first; end < words.size() && end < first + MaxWords; ++end) {
                    joined += words[end];
                    for (const SequencePlace &of : m_table.vocabulary().placesInSequences(joined))
                        columns[{candidate.role, of.sequence, without(words, first, end + 1)}]
                            .emplace(of.number, &candidate);
                }
            }
        }
        for (const auto &[key, byNumber] : columns) {
            if (byNumber.size() < 2 || byNumber.begin()->first != 1)
                continue;
            for (const auto &[number, candidate] : byNumber)
                candidate->owner = candidate->owner < 0 ? number : candidate->owner;
        }
    }

    /// The words without those from `first` to `end`, whose place is marked.
    static std::string without(const std::vector<std::string> &words, std::size_t first,
                               std::size_t end)
    {
        std::string rest;
        for (std::size_t at = 0; at < words.size(); ++at) {
            if (at < first || at >= end)
                rest += words[at] + ' ';
            else if (at == first)
                rest += "* ";
        }
        return rest;
    }

    /// Numbers the first column of a series if it alone has no number: Azimuth, Azimuth.1. Other
    /// roles follow the azimuths: one height may be that of all transmitters.
    void numberFirstOfSeries()
    {
        std::map<std::pair<Role, std::string>, int> lowest; // by name without number
        for (const SiteCandidate &candidate : m_candidates) {
            const std::vector<std::string> &words = m_table.words(candidate.field);
            const auto at = std::find(words.begin(), words.end(), std::to_string(candidate.owner));
            if (candidate.isStated || at == words.end())
                continue;
            std::string name;
            for (auto word = words.begin(); word != words.end(); ++word)
                name += word == at ? std::string() : *word + ' ';
            const auto [of, isNew] = lowest.try_emplace({candidate.role, name}, candidate.owner);
            of->second = std::min(of->second, candidate.owner);
        }
        int first = -1;
        for (const bool ofAzimuths : {true, false}) {
            for (SiteCandidate &candidate : m_candidates) {
                const bool isAzimuth = candidate.role == Role::Azimuth;
                if (isAzimuth != ofAzimuths || candidate.owner >= 0 || candidate.isStated)
                    continue;
                std::string name;
                for (const std::string &word : m_table.words(candidate.field))
                    name += word + ' ';
                const auto of = lowest.find({candidate.role, name});
                const int before = of == lowest.end() ? -1 : of->second - 1;
                if (isAzimuth && first < 0 && (before == 0 || before == 1))
                    first = before;
                if (before >= 0 && before == first)
                    candidate.owner = first;
            }
        }
    }

    /// Whether the columns are numbered by transmitter. If not, the numbers mean something else.
    bool dropNumbersOfOthers()
    {
        std::map<Role, std::set<int>> numbers;
        for (const SiteCandidate &candidate : m_candidates) {
            if (countsTransmitters(candidate.role) && candidate.owner >= 0)
                numbers[candidate.role].insert(candidate.owner);
        }
        const std::vector<int> *azimuth = m_table.stated().find(roleName(Role::Azimuth));
        const bool isSingle = azimuth && azimuth->size() == 1; // it holds for every row
        const bool isNumbered =
            !isSingle &&
            (std::any_of(numbers.begin(), numbers.end(),
                         [](const auto &ofRole) { return ofRole.second.size() > 1; }) ||
             std::any_of(m_candidates.begin(), m_candidates.end(), [this](const SiteCandidate &c) {
                 return c.owner >= 0 && countsTransmitters(c.role) &&
                        (c.isStated || namesASector(c.field));
             }));
        for (SiteCandidate &candidate : m_candidates)
            candidate.owner =
                isNumbered && isRoleOfTransmitter(candidate.role) ? candidate.owner : -1;
        return isNumbered;
    }

    bool namesASector(int field) const
    {
        const std::vector<std::string> &words = m_table.words(field);
        return std::any_of(words.begin(), words.end(), [this](const std::string &word) {
            return m_table.vocabulary().isSectorWord(word);
        });
    }

    SampledTable &m_table;
    const PointFields &m_point;
    const std::vector<std::string> &m_places;
    std::vector<SiteCandidate> m_candidates;
    std::map<std::pair<int, Role>, int> m_bandOf; ///< MHz, by column and role
    std::map<int, int> m_bandsMHz;                ///< by number of the transmitter
    std::vector<int> m_unfitAzimuths;
};

} // namespace

bool isRoleOfSite(Role role)
{
    return role == Role::SiteId || role == Role::SiteName || role == Role::GroundHeight ||
           role == Role::SeaLevelHeight || role == Role::Operator;
}

bool isRoleOfTransmitter(Role role)
{
    return role == Role::AntennaHeight || (role >= Role::SectorId && role <= Role::Technology);
}

SiteCandidates findSiteCandidates(SampledTable &table, const PointFields &point,
                                  const std::vector<std::string> &places)
{
    return Finder(table, point, places).find();
}

std::vector<std::string> placesOf(const SampledTable &table, const PointFields &point)
{
    const std::size_t rows = table.profile().sampledColumns.empty() ? 0 : table.cells(0).size();
    std::vector<std::string> places(rows);
    for (int field = 0; field < table.fieldCount(); ++field) {
        if (!point.uses(field))
            continue;
        for (std::size_t row = 0; row < rows; ++row)
            places[row] += table.cells(field)[row] + ' ';
    }
    for (std::string &place : places) {
        if (place.find_first_not_of(' ') == std::string::npos)
            place.clear();
    }
    return places;
}

} // namespace vlt::driver
