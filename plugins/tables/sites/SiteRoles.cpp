#include "plugins/tables/sites/SiteRoles.h"

#include "contract/TableTexts.h"
#include "plugins/tables/roles/NameMatch.h"
#include "plugins/tables/sites/OfferedFields.h"
#include "plugins/tables/sites/SiteCandidates.h"

#include <algorithm>
#include <map>

namespace vlt::driver {

namespace {

class Finder
{
public:
    Finder(const TableProfile &table, const PointFields &point, const Vocabulary &vocabulary,
           const StatedRoles &stated)
        : m_table(table, vocabulary, stated)
        , m_point(point)
    {}

    SiteRoles find()
    {
        const std::vector<std::string> places = placesOf(m_table, m_point);
        const SiteCandidates candidates = findSiteCandidates(m_table, m_point, places);
        for (const SiteCandidate &chosen : chooseRoles(candidates.list))
            m_roles.columns.push_back({chosen.field, chosen.role, chosen.owner,
                                       m_table.evidence(chosen.field, chosen.role)});
        fill(candidates, places);
        reportUnusedAzimuths(candidates.list);
        reportUnfitAzimuths(candidates.unfitAzimuths);
        reportUpwardTilts();
        addCoordinates();
        return std::move(m_roles);
    }

private:
    /// Whether the name of a column begins a word with one for antennas: "Antennehoogte". The
    /// names of a table without a header are not its own.
    bool namesAnAntenna(int field)
    {
        constexpr std::size_t MinSize = 3;
        for (const std::string &word : m_table.words(field)) {
            for (std::size_t size = word.size(); size >= MinSize; --size) {
                if (m_table.vocabulary().isSectorWord(word.substr(0, size)))
                    return !m_table.profile().header.rows.empty();
            }
        }
        return false;
    }

    /// Adds the columns of the position to the list of roles.
    void addCoordinates()
    {
        std::vector<ColumnRole> columns;
        for (const auto &[field, role] : m_point.roles())
            columns.push_back({field, role, -1, m_table.evidence(field, role)});
        m_roles.columns.insert(m_roles.columns.begin(), columns.begin(), columns.end());
    }

    QuantityField quantity(int field, std::optional<double> WordMeaning::*unit)
    {
        return {field, unitOfName(m_table.words(field), unit, m_table.vocabulary())};
    }

    /// A column of tilts; its unit is negative if its name says that negative tilts point down.
    QuantityField tilt(int field)
    {
        QuantityField tilt = quantity(field, &WordMeaning::degrees);
        if (saysDownIsNegative(m_table.words(field), m_table.vocabulary()))
            tilt.unit = -tilt.unit.value_or(1);
        return tilt;
    }

    /// A column of heights. Its unit may also stand in a column beside it, or in a title.
    QuantityField height(const ColumnRole &column)
    {
        QuantityField height = quantity(column.field, &WordMeaning::metres);
        if (height.unit)
            return height;
        height.unitField = unitFieldOf(column);
        for (const std::string &title : m_table.profile().header.titles) {
            const std::vector<std::string> words = separatedWords(title, m_table.vocabulary());
            const auto unit = unitOfName(words, &WordMeaning::metres, m_table.vocabulary());
            const bool isOfHeights =
                std::any_of(words.begin(), words.end(), [this](const std::string &word) {
                    const WordMeaning *meaning = m_table.vocabulary().find(word);
                    return meaning && meaning->roles[std::size_t(Role::AntennaHeight)];
                });
            if (unit && isOfHeights && !height.unit)
                height.unit = unit;
        }
        return height;
    }

    /// The field with the units of a column: "Height Unit", or "Unit" beside it. -1 for none.
    int unitFieldOf(const ColumnRole &column)
    {
        for (int field = 0; field < m_table.fieldCount(); ++field) {
            if (hasRole(field) || !holdsUnits(field))
                continue;
            std::vector<std::string> words = m_table.words(field);
            const std::size_t before = words.size();
            std::erase_if(words, [this](const std::string &word) {
                const WordMeaning *meaning = m_table.vocabulary().find(word);
                return meaning && meaning->isUnitColumn;
            });
            const std::vector<NameMatch> matches = matchName(words, m_table.vocabulary());
            const bool isOfRole =
                std::any_of(matches.begin(), matches.end(), [&column](const NameMatch &match) {
                    return match.role == column.role;
                });
            if (words.size() < before && (isOfRole || (words.empty() && field == column.field + 1)))
                return field;
        }
        return -1;
    }

    bool holdsUnits(int field)
    {
        const ColumnFacts &facts = m_table.facts(field);
        if (facts.filled == 0 || facts.numeric > 0)
            return false;
        const std::vector<std::string> &cells = m_table.cells(field);
        const auto units = std::count_if(cells.begin(), cells.end(), [this](const auto &cell) {
            return metresOfUnit(cell, m_table.vocabulary()).has_value();
        });
        return static_cast<std::size_t>(units) * 2 > facts.filled;
    }

    bool hasRole(int field) const
    {
        return m_point.uses(field) ||
               std::any_of(m_roles.columns.begin(), m_roles.columns.end(),
                           [field](const ColumnRole &of) { return of.field == field; });
    }

    /// Finds the column that says which antennas send in all directions: "Antenna type" with OMNI,
    /// "Omni?" with yes.
    void findKind(TransmitterFields &fields)
    {
        for (int field = 0; field < m_table.fieldCount(); ++field) {
            if (hasRole(field))
                continue;
            const std::vector<std::string> &words = m_table.words(field);
            std::string name;
            for (const std::string &word : words)
                name += word;
            const WordMeaning *meaning = m_table.vocabulary().find(name);
            if (!meaning || !meaning->isAntennaKind)
                continue;
            const std::vector<std::string> &cells = m_table.cells(field);
            const bool asks = m_table.vocabulary().isOmni(name);
            const bool isSaid = std::any_of(cells.begin(), cells.end(), [&](const auto &cell) {
                return asks ? m_table.vocabulary().isYes(cell)
                            : m_table.vocabulary().isOmni(cell) &&
                                  !m_table.vocabulary().isMissing(cell); // "ND" is both
            });
            if (!isSaid)
                continue;
            fields.kind = field;
            fields.asksOmni = asks;
            return;
        }
    }

    void fill(const SiteCandidates &candidates, const std::vector<std::string> &places)
    {
        const bool isNumbered = candidates.areNumbered;
        std::map<int, TransmitterFields> transmitters;
        for (const ColumnRole &column : m_roles.columns) {
            if (column.role == Role::SiteId)
                m_roles.siteId = column.field;
            else if (column.role == Role::SiteName)
                m_roles.siteName = column.field;
            else if (column.role == Role::GroundHeight)
                m_roles.groundHeight = height(column);
            else if (isRoleOfTransmitter(column.role))
                fillTransmitter(transmitters[column.sector], column);
        }
        m_namesHoldSector = m_roles.siteName >= 0 &&
                            levelOf(m_table.cells(m_roles.siteName), places) == Level::Sector;
        if (isNumbered)
            shareCommonColumns(transmitters);
        else
            for (auto &[number, fields] : transmitters) {
                nameSectorsBySites(fields);
                findKind(fields);
            }
        for (auto &[number, fields] : transmitters) {
            fields.number = number;
            if (const auto band = candidates.bandsMHz.find(number);
                band != candidates.bandsMHz.end())
                fields.bandMHz = band->second;
            // heights alone are those of towers as well
            if (fields.azimuth.found() ||
                (fields.height.found() &&
                 (isNumbered || fields.sectorId >= 0 || fields.frequency.found() ||
                  fields.beamWidth.found() || namesAnAntenna(fields.height.field))))
                m_roles.transmitters.push_back(fields);
        }
        if (m_roles.transmitters.empty())
            return;
        if (!hasKnownTransmitters(m_table.profile()))
            findOtherHeights(isNumbered);
        const TransmitterFields &first = m_roles.transmitters.front();
        const bool mayBeLists = !isNumbered || first.bandMHz;
        const bool areLists = mayBeLists && (holdsLists(first.azimuth) || holdsLists(first.height));
        m_roles.shape = areLists     ? SiteShape::Lists
                        : isNumbered ? SiteShape::Numbered
                                     : SiteShape::Tall;
    }

    /// Takes the heights above sea level less those of the ground where no column has heights above
    /// ground; reports them if the ground is not known.
    void findOtherHeights(bool isNumbered)
    {
        if (m_table.stated().find(roleName(Role::AntennaHeight)) ||
            std::any_of(m_roles.transmitters.begin(), m_roles.transmitters.end(),
                        [](const TransmitterFields &of) { return of.height.found(); }))
            return;
        const auto seaLevel =
            std::find_if(m_roles.columns.begin(), m_roles.columns.end(),
                         [](const ColumnRole &of) { return of.role == Role::SeaLevelHeight; });
        if (seaLevel == m_roles.columns.end())
            return;
        if (!m_roles.groundHeight.found()) {
            m_roles.problems.push_back(
                {0,
                 {},
                 false,
                 contract::formatted("MESS_TAB_SEA_LEVEL", {nameOf(seaLevel->field)})});
            return;
        }
        for (TransmitterFields &fields : m_roles.transmitters) {
            fields.height = quantity(seaLevel->field, &WordMeaning::metres);
            fields.heightBase = m_roles.groundHeight;
            fields.sharesHeight = isNumbered;
        }
    }

    /// Takes the names that hold the sector for those of the transmitters, unless a column names
    /// the sectors of each site, such as A, B, C. Numbers of cells are less telling.
    void nameSectorsBySites(TransmitterFields &fields)
    {
        if (!m_namesHoldSector || m_table.stated().find(roleName(Role::SectorId)))
            return;
        if (fields.sectorId >= 0) {
            const ColumnFacts &facts = m_table.facts(fields.sectorId);
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
            fields.height = height(column);
            break;
        case Role::Azimuth:
            fields.azimuth = quantity(column.field, &WordMeaning::degrees);
            break;
        case Role::MechanicalTilt:
            fields.mechanicalTilt = tilt(column.field);
            break;
        case Role::Tilt:
            if (!fields.mechanicalTilt.found())
                fields.mechanicalTilt = tilt(column.field);
            break;
        case Role::ElectricalTilt:
            fields.electricalTilt = tilt(column.field);
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

    /// Reports the columns that are azimuths by name and values as well as those that are used: a
    /// direction that is not drawn is easily overlooked.
    void reportUnusedAzimuths(const std::vector<SiteCandidate> &candidates)
    {
        constexpr std::size_t MaxReported = 12;
        constexpr double MinShareOfScore = 0.8;
        const SiteCandidate *used = nullptr;
        for (const SiteCandidate &candidate : candidates) {
            if (candidate.role == Role::Azimuth && hasAzimuths(candidate.field) &&
                (!used || candidate.score > used->score))
                used = &candidate;
        }
        for (const SiteCandidate &candidate : candidates) {
            if (!used || m_roles.problems.size() >= MaxReported)
                return;
            if (candidate.role != Role::Azimuth || hasAzimuths(candidate.field) ||
                candidate.score < MinShareOfScore * used->score ||
                m_table.facts(candidate.field).numeric == 0 ||
                m_table.cells(candidate.field) == m_table.cells(used->field))
                continue;
            m_roles.problems.push_back(
                {0,
                 {},
                 false,
                 contract::formatted("MESS_TAB_UNUSED_AZIMUTHS",
                                     {nameOf(candidate.field), nameOf(used->field)})});
        }
    }

    /// Reports the columns that are azimuths by name but not by their values, if no others are.
    void reportUnfitAzimuths(const std::vector<int> &fields)
    {
        const bool hasAny =
            std::any_of(m_roles.columns.begin(), m_roles.columns.end(),
                        [](const ColumnRole &of) { return of.role == Role::Azimuth; });
        if (hasAny || m_table.stated().find(roleName(Role::Azimuth)))
            return;
        for (const int field : fields)
            m_roles.problems.push_back(
                {0, {}, false, contract::formatted("MESS_TAB_UNFIT_AZIMUTHS", {nameOf(field)})});
    }

    /// Reports mechanical tilts that are never positive: perhaps they are angles of elevation.
    void reportUpwardTilts()
    {
        for (const TransmitterFields &fields : m_roles.transmitters) {
            if (!fields.mechanicalTilt.found() || fields.mechanicalTilt.unit.value_or(1) < 0)
                continue;
            const ColumnFacts &facts = m_table.facts(fields.mechanicalTilt.field);
            if (facts.numeric < 2 || facts.maximum > 0 || facts.minimum >= 0)
                continue;
            m_roles.problems.push_back(
                {0,
                 {},
                 false,
                 contract::formatted("MESS_TAB_UPWARD_TILTS",
                                     {nameOf(fields.mechanicalTilt.field)})});
            return;
        }
    }

    const std::string &nameOf(int field) const
    {
        return m_table.profile().fields[static_cast<std::size_t>(field)].name;
    }

    bool hasAzimuths(int field) const
    {
        return std::any_of(
            m_roles.transmitters.begin(), m_roles.transmitters.end(),
            [field](const TransmitterFields &of) { return of.azimuth.field == field; });
    }

    bool holdsLists(const QuantityField &field)
    {
        if (!field.found())
            return false;
        const ColumnFacts &facts = m_table.facts(field.field);
        return facts.lists * 2 > facts.numeric;
    }

    SampledTable m_table;
    const PointFields &m_point;
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
