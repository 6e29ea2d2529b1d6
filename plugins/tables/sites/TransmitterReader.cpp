#include "plugins/tables/sites/TransmitterReader.h"

#include "contract/TableTexts.h"
#include "contract/TransmitterRanges.h"
#include "plugins/tables/cells/ValueList.h"
#include "plugins/tables/roles/HeightBase.h"
#include "plugins/tables/roles/NameMatch.h"
#include "plugins/tables/sites/PositionReader.h"

#include <algorithm>

namespace vlt::driver {

namespace {

using contract::TableTextId;

constexpr double WholeTurnDeg = 360;
constexpr std::size_t MaxListed = 100; ///< items of a list

using Parts = std::vector<std::string_view>;

/// The number of parts without empty ones at the end.
std::size_t sizeOf(const Parts &parts)
{
    std::size_t size = parts.size();
    while (size > 1 && parts[size - 1].empty())
        --size;
    return size;
}

/// Whether a list has one value for each of `count` transmitters, or one for all.
bool suits(const Parts &parts, std::size_t count)
{
    return parts.size() == 1 || parts.size() == count || sizeOf(parts) == count;
}

} // namespace

/// The row that is read, and one of its transmitters.
class TransmitterReader::RowContext
{
public:
    RowContext(const TransmitterReader &reader, int64_t row, const std::vector<const Cell *> &cells,
               std::vector<RowProblem> &problems)
        : m_reader(reader)
        , m_row(row)
        , m_cells(cells)
        , m_problems(problems)
    {}

    std::optional<TransmitterValues> read(const TransmitterFields &fields, std::size_t item)
    {
        m_item = item;
        m_isOmni = isOmniByKind(fields);
        m_isUsable = true;
        TransmitterValues values;
        values.heightM = heightM(fields);
        values.azimuthDeg = number(fields.azimuth, readAzimuthDeg, "MESS_TAB_SECTOR_AZIMUTH");
        values.beamWidthDeg =
            number(fields.beamWidth, readBeamWidthDeg, "MESS_TAB_SECTOR_BEAM_WIDTH");
        values.mechanicalTiltDeg =
            number(fields.mechanicalTilt, readTiltDeg, "MESS_TAB_SECTOR_TILT");
        values.electricalTiltDeg =
            number(fields.electricalTilt, readTiltDeg, "MESS_TAB_SECTOR_TILT");
        if (!m_isUsable)
            return std::nullopt;
        const bool isEmpty = (!values.heightM || fields.sharesHeight) && !values.azimuthDeg &&
                             !values.mechanicalTiltDeg && !values.electricalTiltDeg &&
                             !values.beamWidthDeg && !m_isOmni && text(fields.sectorId).empty();
        if (isEmpty || isDirectionUnknown(fields.azimuth, values))
            return std::nullopt;
        if (values.azimuthDeg && (m_isOmni || values.beamWidthDeg == WholeTurnDeg))
            values.azimuthDeg.reset();
        values.sectorId = text(fields.sectorId);
        values.technology = technology(fields.technology);
        values.frequencyMHz = frequencyMHz(fields.frequency);
        if (!values.frequencyMHz)
            values.frequencyMHz = fields.bandMHz;
        return values;
    }

    /// Finds the number of transmitters in the lists of a row, and reports the lists of another
    /// length: it is not known which transmitter lacks a value.
    std::size_t countItems(const TransmitterFields &fields)
    {
        const auto partsOf = [this](const QuantityField &of, std::string &text) {
            text = fieldText(m_cells, of.field);
            return valuesIn(text);
        };
        std::string text;
        m_itemCount = sizeOf(partsOf(fields.azimuth, text));
        if (m_itemCount == 1)
            m_itemCount = sizeOf(partsOf(fields.height, text));
        m_itemCount = std::min(m_itemCount, MaxListed);
        for (const QuantityField &of :
             {fields.azimuth, fields.height, fields.mechanicalTilt, fields.electricalTilt,
              fields.beamWidth}) { // a list of bands may be that of each transmitter
            const Parts parts = partsOf(of, text);
            if (!suits(parts, m_itemCount))
                report(
                    of, "MESS_TAB_LIST_LENGTH",
                    {quotation(text), std::to_string(parts.size()), std::to_string(m_itemCount)});
        }
        return m_itemCount;
    }

private:
    using ReadValue = TransmitterValue (*)(std::string_view text, double unit,
                                           const ValueWords &words);

    /// The text of the transmitter in a field; empty in a list of another length.
    std::string itemText(int field, bool holdsNames = false) const
    {
        std::string whole = fieldText(m_cells, field);
        if (m_reader.m_roles->shape != SiteShape::Lists || m_reader.m_words.isOmni(whole))
            return whole;
        const Parts parts = holdsNames ? splitNames(whole) : valuesIn(whole);
        if (parts.size() == 1)
            return whole;
        return suits(parts, m_itemCount) && m_item < parts.size() ? std::string(parts[m_item])
                                                                  : std::string();
    }
    std::string text(int field) const { return itemText(field, true); }

    /// Whether the kind of the antenna says that it sends in all directions, and the azimuth does
    /// not say otherwise: 0, 360 and -1 stand for no azimuth then.
    bool isOmniByKind(const TransmitterFields &fields) const
    {
        const std::string kind = fieldText(m_cells, fields.kind);
        const Vocabulary &vocabulary = *m_reader.m_vocabulary;
        if (kind.empty() || !(fields.asksOmni ? vocabulary.isYes(kind) : vocabulary.isOmni(kind)) ||
            vocabulary.isMissing(kind))
            return false;
        const auto azimuth = readDegrees(itemText(fields.azimuth.field));
        return !azimuth || *azimuth == 0 || *azimuth == WholeTurnDeg || *azimuth == -1;
    }

    /// The text of a list of azimuths or heights; "0-360" is none.
    Parts valuesIn(std::string_view text) const
    {
        const ValueWords &words = m_reader.m_words;
        return words.isOmni(text) ? Parts{text} : splitList(words.aboveGround(text));
    }

    /// Metres or degrees per unit of a number without a unit; nothing if the unit of the row is not
    /// known.
    std::optional<double> unitOf(const QuantityField &of)
    {
        const std::string unit = fieldText(m_cells, of.unitField);
        if (unit.empty())
            return of.unit.value_or(1);
        const auto metres = metresOfUnit(unit, *m_reader.m_vocabulary);
        if (!metres) {
            m_isUsable = false;
            report({of.unitField, std::nullopt}, "MESS_TAB_UNKNOWN_UNIT", {quotation(unit)});
        }
        return metres;
    }

    /// "LTE/NR" beside three azimuths is that of each of them.
    std::string technology(int field) const
    {
        const std::string whole = fieldText(m_cells, field);
        return suits(splitNames(whole), m_itemCount) ? text(field) : whole;
    }

    /// A number in metres or degrees; reports one that cannot be used.
    std::optional<double> number(const QuantityField &of, ReadValue readValue, TableTextId why)
    {
        if (!of.found())
            return std::nullopt;
        const std::string item = itemText(of.field);
        const std::optional<double> unit = unitOf(of);
        if (!unit)
            return std::nullopt;
        const TransmitterValue value = readValue(item, *unit, m_reader.m_words);
        m_isOmni = m_isOmni || value.isOmni;
        if (value.fault) {
            m_isUsable = false;
            report(of, why, {quotation(item)});
        }
        return value.number;
    }

    /// The height above ground; none if its base is needed and not known.
    std::optional<double> heightM(const TransmitterFields &fields)
    {
        if (!fields.heightBase.found())
            return number(fields.height, readAntennaHeightM, "MESS_TAB_SECTOR_HEIGHT");
        const auto aboveSeaM =
            readLengthM(itemText(fields.height.field), fields.height.unit.value_or(1));
        const auto baseM = readLengthM(fieldText(m_cells, fields.heightBase.field),
                                       fields.heightBase.unit.value_or(1));
        if (!aboveSeaM || !baseM)
            return std::nullopt;
        const double heightM = *aboveSeaM - *baseM;
        if (contract::AntennaHeightM.contains(heightM))
            return heightM;
        m_isUsable = false;
        report(fields.height, "MESS_TAB_SECTOR_HEIGHT", {quotation(itemText(fields.height.field))});
        return std::nullopt;
    }

    /// Whether a cell says that the azimuth is not known; reports it.
    bool isDirectionUnknown(const QuantityField &of, const TransmitterValues &values)
    {
        const bool isStated = m_isOmni || values.azimuthDeg || values.beamWidthDeg == WholeTurnDeg;
        if (!of.found() || isStated)
            return false;
        const std::string item = itemText(of.field);
        if (!readAzimuthDeg(item, 1, m_reader.m_words).isUnknown)
            return false;
        report(of, "MESS_TAB_SECTOR_AZIMUTH", {quotation(item)});
        return true;
    }

    /// A frequency is not needed to draw the transmitter.
    std::optional<double> frequencyMHz(const QuantityField &of)
    {
        const std::string item = itemText(of.field);
        const TransmitterValue value = readFrequency(item, of.unit, m_reader.m_words);
        if (value.fault)
            report(of,
                   *value.fault == ValueFault::Unreadable
                       ? TableTextId("MESS_TAB_FREQUENCY_UNREADABLE")
                       : TableTextId("MESS_TAB_FREQUENCY_NOT_POSITIVE"),
                   {quotation(item)});
        return value.number;
    }

    void report(const QuantityField &of, TableTextId why,
                std::initializer_list<std::string_view> values)
    {
        m_problems.push_back({m_row,
                              m_reader.m_table->fields[static_cast<std::size_t>(of.field)].name,
                              false, contract::formatted(why, values)});
    }

    const TransmitterReader &m_reader;
    int64_t m_row;
    const std::vector<const Cell *> &m_cells;
    std::vector<RowProblem> &m_problems;
    std::size_t m_itemCount = 1; ///< of the lists
    std::size_t m_item = 0;
    bool m_isUsable = true;
    bool m_isOmni = false;
};

bool hasTransmitters(const std::vector<std::optional<TransmitterValues>> &transmitters)
{
    return std::any_of(transmitters.begin(), transmitters.end(),
                       [](const auto &values) { return values.has_value(); });
}

TransmitterReader::TransmitterReader(const TableProfile &table, const SiteRoles &roles,
                                     const Vocabulary &vocabulary)
    : m_table(&table)
    , m_roles(&roles)
    , m_vocabulary(&vocabulary)
{
    m_words.isMissing = [&vocabulary](std::string_view text) { return vocabulary.isMissing(text); };
    m_words.isOmni = [&vocabulary](std::string_view text) { return vocabulary.isOmni(text); };
    m_words.aboveGround = [&vocabulary](std::string_view text) {
        return heightAboveGround(text, vocabulary);
    };
}

std::vector<std::optional<TransmitterValues>>
TransmitterReader::read(int64_t row, const std::vector<const Cell *> &cells,
                        std::vector<RowProblem> &problems) const
{
    std::vector<std::optional<TransmitterValues>> transmitters;
    for (const TransmitterFields &fields : m_roles->transmitters) {
        RowContext context(*this, row, cells, problems);
        const std::size_t items =
            m_roles->shape == SiteShape::Lists ? context.countItems(fields) : 1;
        for (std::size_t item = 0; item < items; ++item)
            transmitters.push_back(context.read(fields, item));
    }
    return transmitters;
}

} // namespace vlt::driver
