#include "plugins/tables/sites/SiteRoles.h"

#include "contract/TableTexts.h"
#include "plugins/tables/cells/Cell.h"
#include "plugins/tables/roles/NameMatch.h"
#include "plugins/tables/roles/RoleEvidence.h"
#include "plugins/tables/sites/SectorSuffix.h"

#include <algorithm>
#include <array>
#include <map>
#include <numeric>
#include <optional>
#include <set>
#include <tuple>

namespace vlt::driver {

namespace {

constexpr double MinFit = 0.5;
constexpr int PointsOfLevel = 30;
constexpr int PointsOfCounter = 20;

bool isOfSite(Role role)
{
    return role == Role::SiteId || role == Role::SiteName || role == Role::GroundHeight ||
           role == Role::SeaLevelHeight || role == Role::Operator;
}

bool isOfTransmitter(Role role)
{
    return role == Role::AntennaHeight || (role >= Role::SectorId && role <= Role::Technology);
}

/// Roles of which several columns, one per transmitter, make a table a numbered one.
bool countsTransmitters(Role role)
{
    return role == Role::Azimuth || role == Role::AntennaHeight;
}

/// A role that a field may have.
struct Candidate
{
    int field = 0;
    Role role = Role::None;
    int sector = -1;
    double score = 0;
    bool isStated = false;
};

class Finder
{
public:
    Finder(const TableProfile &table, const PointFields &point, const Vocabulary &vocabulary,
           const StatedRoles &stated)
        : m_table(table)
        , m_point(point)
        , m_vocabulary(vocabulary)
        , m_stated(stated)
        , m_words(table.fields.size())
        , m_facts(table.fields.size())
    {}

    SiteRoles find()
    {
        readPlaces();
        for (std::size_t field = 0; field < m_table.fields.size(); ++field) {
            if (!m_point.uses(static_cast<int>(field)) &&
                !m_stated.fields.contains(static_cast<int>(field)))
                addCandidates(static_cast<int>(field));
        }
        addStated();
        useLevels();
        addCounter();
        dropStated();
        numberRepeatedNames();
        const bool isNumbered = dropNumbersOfOthers();
        assign();
        fill(isNumbered);
        addCoordinates();
        return std::move(m_roles);
    }

private:
    const std::vector<std::string> &cellsOf(int field) const
    {
        return m_table.sampledColumns[static_cast<std::size_t>(field)];
    }

    const ColumnFacts &factsOfField(int field)
    {
        std::optional<ColumnFacts> &facts = m_facts[static_cast<std::size_t>(field)];
        if (!facts)
            facts = factsOf(cellsOf(field), m_vocabulary);
        return *facts;
    }

    /// The texts of the position in each sampled row, together.
    void readPlaces()
    {
        const std::size_t rows = m_table.sampledColumns.empty() ? 0 : cellsOf(0).size();
        m_places.resize(rows);
        for (std::size_t field = 0; field < m_table.fields.size(); ++field) {
            if (!m_point.uses(static_cast<int>(field)))
                continue;
            for (std::size_t row = 0; row < rows; ++row)
                m_places[row] += cellsOf(static_cast<int>(field))[row] + ' ';
        }
        for (std::string &place : m_places) {
            if (place.find_first_not_of(' ') == std::string::npos)
                place.clear();
        }
    }

    void readWords(int field)
    {
        m_words[static_cast<std::size_t>(field)] =
            separatedWords(m_table.nameWithUnit(field), m_vocabulary);
    }

    void addCandidates(int field)
    {
        const auto at = static_cast<std::size_t>(field);
        readWords(field);
        std::vector<NameMatch> matches = matchName(m_words[at], m_vocabulary);
        if (matches.empty()) {
            if (const auto ofRows = matchKindOfRows(m_words[at], m_vocabulary))
                matches.push_back(*ofRows);
        }
        for (const NameMatch &match : matches) {
            if (!isOfSite(match.role) && !isOfTransmitter(match.role))
                continue;
            const double fit = fitOf(match.role, factsOfField(field));
            if (fit < MinFit)
                continue;
            m_candidates.push_back({field, match.role, match.sector, match.strength * fit});
        }
    }

    /// Adds the stated roles. The columns of a list belong to the transmitters whose numbers the
    /// other columns have, in their order; without such numbers they count from 1.
    void addStated()
    {
        std::set<int> found;
        std::size_t longest = 0;
        for (const Candidate &candidate : m_candidates) {
            if (isOfTransmitter(candidate.role) && candidate.sector >= 0)
                found.insert(candidate.sector);
        }
        for (const auto &[name, fields] : m_stated.roles) {
            const Role role = roleOfName(name);
            longest = std::max(longest, fields.size());
            for (const int field : fields) {
                if (field < 0)
                    continue;
                readWords(field);
                if (fields.size() < 2 || !isOfTransmitter(role))
                    continue;
                for (const NameMatch &match :
                     matchName(m_words[static_cast<std::size_t>(field)], m_vocabulary)) {
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
        constexpr double Certain = 1e6; // more than any name has
        for (const auto &[name, fields] : m_stated.roles) {
            const Role role = roleOfName(name);
            const bool isList = fields.size() > 1 && isOfTransmitter(role);
            for (std::size_t i = 0; i < fields.size(); ++i) {
                if (fields[i] >= 0 && (isOfSite(role) || isOfTransmitter(role)))
                    m_candidates.push_back(
                        {fields[i], role, isList ? numbers[i] : -1, Certain, true});
            }
        }
    }

    /// Drops the candidates for roles that are stated.
    void dropStated()
    {
        std::erase_if(m_candidates, [this](const Candidate &candidate) {
            // a tilt of no kind would stand for the mechanical one
            const Role role = candidate.role == Role::Tilt ? Role::MechanicalTilt : candidate.role;
            return !candidate.isStated &&
                   (m_stated.find(roleName(candidate.role)) || m_stated.find(roleName(role)));
        });
    }

    /// A name or an id belongs to sites or to sectors, whatever its column is called: the values
    /// at each position decide.
    void useLevels()
    {
        const bool hasAzimuths =
            std::any_of(m_candidates.begin(), m_candidates.end(),
                        [](const Candidate &candidate) { return candidate.role == Role::Azimuth; });
        for (Candidate &candidate : m_candidates) {
            if (isName(candidate) && !candidate.isStated)
                adjustToLevel(candidate, hasAzimuths);
        }
        std::set<int> namesSites;
        for (const Candidate &candidate : m_candidates) {
            if (isName(candidate) && candidate.role != Role::SectorId)
                namesSites.insert(candidate.field);
        }
        for (Candidate &candidate : m_candidates) {
            const bool isOnlyName = namesSites.empty() || (namesSites.size() == 1 &&
                                                           namesSites.contains(candidate.field));
            if (isOnlyName && !candidate.isStated && candidate.role == Role::SectorId &&
                candidate.sector < 0 && (!hasAzimuths || namesHoldSector(candidate.field)))
                candidate.role = Role::SiteName;
        }
    }

    static bool isName(const Candidate &candidate)
    {
        return candidate.role == Role::SiteId || candidate.role == Role::SiteName ||
               candidate.role == Role::SectorId;
    }

    bool namesASite(int field) const
    {
        const std::vector<std::string> &words = m_words[static_cast<std::size_t>(field)];
        return std::any_of(words.begin(), words.end(), [this](const std::string &word) {
            const WordMeaning *meaning = m_vocabulary.find(word);
            return meaning && meaning->isSite;
        });
    }

    void adjustToLevel(Candidate &candidate, bool hasAzimuths)
    {
        const Level level = levelOf(cellsOf(candidate.field), m_places);
        const bool ofSector = candidate.role == Role::SectorId;
        if (ofSector && countsWithinPlaces(candidate.field))
            candidate.score += PointsOfCounter;
        if (level == Level::Area)
            candidate.score -= ofSector ? 0 : PointsOfLevel;
        else if (level == Level::Site && ofSector && candidate.sector < 0)
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
        for (std::size_t row = 0; row < cellsOf(field).size(); ++row) {
            place = m_places[row].empty() ? place : m_places[row];
            const std::size_t number = ++rowsOf[place];
            if (trimmed(cellsOf(field)[row]) != std::to_string(number))
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
                        [](const Candidate &of) { return of.role == Role::SectorId; });
        std::set<int> known;
        for (const Candidate &candidate : m_candidates)
            known.insert(candidate.field);
        for (int field = 0; !namesSectors && field < int(m_table.fields.size()); ++field) {
            if (m_point.uses(field) || known.contains(field) || !countsWithinPlaces(field))
                continue;
            m_candidates.push_back({field, Role::SectorId, -1, PointsOfCounter});
            return;
        }
    }

    bool namesHoldSector(int field) const
    {
        std::vector<std::string> bases;
        for (const std::string &cell : cellsOf(field))
            bases.emplace_back(withoutSector(trimmed(cell), m_vocabulary));
        return levelOf(bases, m_places) == Level::Site;
    }

    /// Numbers columns of transmitters that have the same name in the header: Azimuth, Azimuth.
    void numberRepeatedNames()
    {
        std::map<std::pair<Role, std::string>, std::vector<Candidate *>> byName;
        for (Candidate &candidate : m_candidates) {
            if (isOfTransmitter(candidate.role) && candidate.sector < 0 && !candidate.isStated)
                byName[{candidate.role, m_table.nameInGroup(candidate.field)}].push_back(
                    &candidate);
        }
        for (const auto &[name, same] : byName) {
            if (same.size() < 2)
                continue;
            int number = 0;
            for (Candidate *candidate : same)
                candidate->sector = ++number;
        }
    }

    /// Whether the columns are numbered by transmitter. If not, the numbers mean something else.
    bool dropNumbersOfOthers()
    {
        std::map<Role, std::set<int>> numbers;
        for (const Candidate &candidate : m_candidates) {
            if (countsTransmitters(candidate.role) && candidate.sector >= 0)
                numbers[candidate.role].insert(candidate.sector);
        }
        const std::vector<int> *azimuth = m_stated.find(roleName(Role::Azimuth));
        const bool isSingle = azimuth && azimuth->size() == 1; // it holds for every row
        const bool isNumbered =
            !isSingle &&
            (std::any_of(numbers.begin(), numbers.end(),
                         [](const auto &ofRole) { return ofRole.second.size() > 1; }) ||
             std::any_of(m_candidates.begin(), m_candidates.end(), [this](const Candidate &c) {
                 return c.sector >= 0 && countsTransmitters(c.role) &&
                        (c.isStated || namesASector(c.field));
             }));
        for (Candidate &candidate : m_candidates)
            candidate.sector = isNumbered ? candidate.sector : -1;
        return isNumbered;
    }

    bool isSectorWord(const std::string &word) const
    {
        const WordMeaning *meaning = m_vocabulary.find(word);
        return meaning && meaning->isSector;
    }

    bool namesASector(int field) const
    {
        const std::vector<std::string> &words = m_words[static_cast<std::size_t>(field)];
        return std::any_of(words.begin(), words.end(),
                           [this](const std::string &word) { return isSectorWord(word); });
    }

    /// Whether the name of a column begins a word with one for antennas: "Antennehoogte". The
    /// names of a table without a header are not its own.
    bool namesAnAntenna(int field) const
    {
        constexpr std::size_t MinSize = 3;
        for (const std::string &word : m_words[static_cast<std::size_t>(field)]) {
            for (std::size_t size = word.size(); size >= MinSize; --size) {
                if (isSectorWord(word.substr(0, size)))
                    return !m_table.header.rows.empty();
            }
        }
        return false;
    }

    std::string evidenceOf(int field, Role role)
    {
        if (m_stated.fields.contains(field))
            return m_stated.evidence;
        return m_table.header.rows.empty()
                   ? contract::formatted("MESS_TAB_EVIDENCE_NO_HEADER")
                   : roleEvidence(m_table.nameInHeader(field), role, factsOfField(field));
    }

    /// Gives each field one role, and each role of the site or of a transmitter one field: the
    /// strongest candidates first, then the columns on the left.
    void assign()
    {
        std::stable_sort(m_candidates.begin(), m_candidates.end(),
                         [](const Candidate &a, const Candidate &b) { return a.score > b.score; });
        std::set<std::pair<Role, int>> taken;
        std::set<int> used;
        for (const Candidate &candidate : m_candidates) {
            const int sector = isOfTransmitter(candidate.role) ? candidate.sector : -1;
            if (used.contains(candidate.field) || !taken.emplace(candidate.role, sector).second)
                continue;
            used.insert(candidate.field);
            m_roles.columns.push_back({candidate.field, candidate.role, sector, {}});
        }
        std::sort(m_roles.columns.begin(), m_roles.columns.end(),
                  [](const ColumnRole &a, const ColumnRole &b) { return a.field < b.field; });
        for (ColumnRole &column : m_roles.columns)
            column.evidence = evidenceOf(column.field, column.role);
    }

    /// Adds the columns of the position to the list of roles.
    void addCoordinates()
    {
        std::vector<ColumnRole> columns;
        const auto add = [&](int field, Role role) {
            if (field >= 0)
                columns.push_back({field, role, -1, evidenceOf(field, role)});
        };
        for (const auto &[fields, role] :
             {std::pair(m_point.x, Role::X), std::pair(m_point.y, Role::Y)}) {
            for (const int field :
                 {fields.value, fields.minutes, fields.seconds, fields.hemisphere})
                add(field, role);
        }
        add(m_point.pair, Role::Pair);
        m_roles.columns.insert(m_roles.columns.begin(), columns.begin(), columns.end());
    }

    QuantityField quantity(int field, std::optional<double> WordMeaning::*unit) const
    {
        return {field, unitOfName(m_words[static_cast<std::size_t>(field)], unit, m_vocabulary)};
    }

    void fill(bool isNumbered)
    {
        std::map<int, TransmitterFields> transmitters;
        for (const ColumnRole &column : m_roles.columns) {
            if (column.role == Role::SiteId)
                m_roles.siteId = column.field;
            else if (column.role == Role::SiteName)
                m_roles.siteName = column.field;
            else if (column.role == Role::GroundHeight)
                m_roles.groundHeight = quantity(column.field, &WordMeaning::metres);
            else if (isOfTransmitter(column.role))
                fillTransmitter(transmitters[column.sector], column);
        }
        m_namesHoldSector =
            m_roles.siteName >= 0 && levelOf(cellsOf(m_roles.siteName), m_places) == Level::Sector;
        if (isNumbered)
            shareCommonColumns(transmitters);
        else
            for (auto &[number, fields] : transmitters)
                nameSectorsBySites(fields);
        for (auto &[number, fields] : transmitters) {
            fields.number = number;
            // heights alone are those of towers as well
            if (fields.azimuth.found() ||
                (fields.height.found() &&
                 (isNumbered || fields.sectorId >= 0 || fields.frequency.found() ||
                  fields.beamWidth.found() || namesAnAntenna(fields.height.field))))
                m_roles.transmitters.push_back(fields);
        }
        if (m_roles.transmitters.empty())
            return;
        const TransmitterFields &first = m_roles.transmitters.front();
        m_roles.shape = isNumbered ? SiteShape::Numbered
                        : holdsLists(first.azimuth) || holdsLists(first.height) ? SiteShape::Lists
                                                                                : SiteShape::Tall;
    }

    /// Takes the names that hold the sector for those of the transmitters, unless a column names
    /// the sectors of each site, such as A, B, C. Numbers of cells are less telling.
    void nameSectorsBySites(TransmitterFields &fields)
    {
        if (!m_namesHoldSector || m_stated.find(roleName(Role::SectorId)))
            return;
        if (fields.sectorId >= 0) {
            const ColumnFacts &facts = factsOfField(fields.sectorId);
            if (facts.distinct < facts.filled)
                return;
        }
        fields.sectorId = m_roles.siteName;
    }

    /// Columns without a number hold for all transmitters.
    static void shareCommonColumns(std::map<int, TransmitterFields> &transmitters)
    {
        const auto common = transmitters.find(-1);
        if (common == transmitters.end())
            return;
        const TransmitterFields shared = common->second;
        transmitters.erase(common);
        for (auto &[number, fields] : transmitters) {
            fields.sharesHeight = !fields.height.found();
            for (QuantityField TransmitterFields::*member :
                 {&TransmitterFields::height, &TransmitterFields::mechanicalTilt,
                  &TransmitterFields::electricalTilt, &TransmitterFields::beamWidth,
                  &TransmitterFields::frequency}) {
                if (!(fields.*member).found())
                    fields.*member = shared.*member;
            }
            if (fields.technology < 0)
                fields.technology = shared.technology;
        }
    }

    void fillTransmitter(TransmitterFields &fields, const ColumnRole &column)
    {
        switch (column.role) {
        case Role::SectorId:
            fields.sectorId = column.field;
            break;
        case Role::AntennaHeight:
            fields.height = quantity(column.field, &WordMeaning::metres);
            break;
        case Role::Azimuth:
            fields.azimuth = quantity(column.field, &WordMeaning::degrees);
            break;
        case Role::MechanicalTilt:
            fields.mechanicalTilt = quantity(column.field, &WordMeaning::degrees);
            break;
        case Role::Tilt:
            if (!fields.mechanicalTilt.found())
                fields.mechanicalTilt = quantity(column.field, &WordMeaning::degrees);
            break;
        case Role::ElectricalTilt:
            fields.electricalTilt = quantity(column.field, &WordMeaning::degrees);
            break;
        case Role::BeamWidth:
            fields.beamWidth = quantity(column.field, &WordMeaning::degrees);
            break;
        case Role::Frequency:
            fields.frequency = quantity(column.field, &WordMeaning::megahertz);
            break;
        case Role::Band:
            fields.band = column.field;
            if (const QuantityField band = quantity(column.field, &WordMeaning::megahertz);
                band.unit && !fields.frequency.found())
                fields.frequency = band; // "Band (MHz)"
            break;
        case Role::Technology:
            fields.technology = column.field;
            break;
        default:
            break;
        }
    }

    bool holdsLists(const QuantityField &field)
    {
        if (!field.found())
            return false;
        const ColumnFacts &facts = factsOfField(field.field);
        return facts.lists * 2 > facts.numeric;
    }

    const TableProfile &m_table;
    const PointFields &m_point;
    const Vocabulary &m_vocabulary;
    const StatedRoles &m_stated;
    std::vector<std::vector<std::string>> m_words; ///< of each field
    std::vector<std::optional<ColumnFacts>> m_facts;
    std::vector<std::string> m_places; ///< by sampled row
    std::vector<Candidate> m_candidates;
    /// The names of the sites differ by the sector alone: "Gare A", "Gare B".
    bool m_namesHoldSector = false;
    SiteRoles m_roles;
};

} // namespace

SiteRoles findSiteRoles(const TableProfile &table, const PointFields &point,
                        const Vocabulary &vocabulary, const StatedRoles &stated)
{
    return Finder(table, point, vocabulary, stated).find();
}

} // namespace vlt::driver
