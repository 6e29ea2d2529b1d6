#include "plugins/tables/sites/TransmitterReader.h"

#include "contract/TableTexts.h"
#include "plugins/tables/cells/Cell.h"
#include "plugins/tables/sites/PositionReader.h"

#include <algorithm>
#include <cmath>

namespace vlt::driver {

namespace {

using contract::TableTextId;

constexpr double WholeTurnDeg = 360;
constexpr double MaxHeightM = 2000;
constexpr double MaxTiltDeg = 90;
constexpr std::size_t MaxListed = 100; ///< items of a list
constexpr std::string_view ListMarks = "/;|";

/// The item of a list; the whole text if it is no list.
std::string_view itemOf(std::string_view text, std::size_t index)
{
    if (text.find_first_of(ListMarks) == std::string_view::npos)
        return text;
    for (; index > 0; --index) {
        const std::size_t mark = text.find_first_of(ListMarks);
        if (mark == std::string_view::npos)
            return {};
        text.remove_prefix(mark + 1);
    }
    return trimmed(text.substr(0, text.find_first_of(ListMarks)));
}

std::size_t itemsIn(std::string_view text)
{
    const auto marks = std::count_if(text.begin(), text.end(), [](char c) {
        return ListMarks.find(c) != std::string_view::npos;
    });
    return text.empty() ? 0 : std::min<std::size_t>(static_cast<std::size_t>(marks) + 1, MaxListed);
}

/// Whether a text consists of nines, which fill numbers that are not known.
bool isFiller(std::string_view text)
{
    return text.size() >= 4 && text.find_first_not_of("9.,") == std::string_view::npos;
}

} // namespace

/// The row that is read, and one of its transmitters.
class TransmitterReader::RowContext
{
public:
    RowContext(const TransmitterReader &reader, int64_t row,
               const std::vector<const Cell *> &cells, std::vector<RowProblem> &problems)
        : m_reader(reader)
        , m_row(row)
        , m_cells(cells)
        , m_problems(problems)
    {}

    std::optional<TransmitterValues> read(const TransmitterFields &fields, std::size_t item)
    {
        m_item = item;
        m_isOmni = false;
        m_isUsable = true;
        TransmitterValues values;
        values.heightM = number(fields.height, 0, MaxHeightM, "MESS_TAB_SECTOR_HEIGHT");
        values.azimuthDeg = number(fields.azimuth, -WholeTurnDeg, WholeTurnDeg,
                                   "MESS_TAB_SECTOR_AZIMUTH");
        values.beamWidthDeg =
            number(fields.beamWidth, 0, WholeTurnDeg, "MESS_TAB_SECTOR_BEAM_WIDTH");
        const bool isUsable = m_isUsable;
        values.mechanicalTiltDeg = number(fields.mechanicalTilt, -MaxTiltDeg, MaxTiltDeg,
                                          "MESS_TAB_SECTOR_TILT");
        values.electricalTiltDeg = number(fields.electricalTilt, -MaxTiltDeg, MaxTiltDeg,
                                          "MESS_TAB_SECTOR_TILT");
        if (!isUsable || !m_isUsable)
            return std::nullopt;
        const bool isEmpty = !values.heightM && !values.azimuthDeg && !values.mechanicalTiltDeg &&
                             !values.electricalTiltDeg && !values.beamWidthDeg && !m_isOmni &&
                             text(fields.sectorId).empty();
        if (isEmpty)
            return std::nullopt;
        if (values.azimuthDeg && (m_isOmni || values.beamWidthDeg == WholeTurnDeg))
            values.azimuthDeg.reset();
        if (values.azimuthDeg)
            values.azimuthDeg = std::fmod(*values.azimuthDeg + WholeTurnDeg, WholeTurnDeg);
        values.sectorId = text(fields.sectorId);
        values.technology = text(fields.technology);
        if (const std::string frequency = text(fields.frequency.field); !isAbsent(frequency))
            values.frequencyMHz = readFrequencyMHz(frequency, fields.frequency.unit);
        return values;
    }

    std::size_t itemCount(const TransmitterFields &fields) const
    {
        std::size_t count = 1;
        for (const int field : {fields.azimuth.field, fields.height.field})
            count = std::max(count, itemsIn(fieldText(m_cells, field)));
        return count;
    }

private:
    bool isAbsent(std::string_view text) const
    {
        return text.empty() || m_reader.m_vocabulary->isMissing(text) || isFiller(text);
    }

    std::string text(int field) const
    {
        const std::string whole = fieldText(m_cells, field);
        return m_reader.m_roles->shape == SiteShape::Lists ? std::string(itemOf(whole, m_item))
                                                           : whole;
    }

    /// A number in metres or degrees; reports one that cannot be read or is out of range.
    std::optional<double> number(const QuantityField &of, double minimum, double maximum,
                                 TableTextId why)
    {
        if (!of.found())
            return std::nullopt;
        const std::string value = text(of.field);
        if (isAbsent(value))
            return std::nullopt;
        if (m_reader.m_vocabulary->isOmni(value)) {
            m_isOmni = true;
            return std::nullopt;
        }
        const bool isLength = maximum == MaxHeightM;
        std::optional<double> read =
            isLength ? readLengthM(value, of.unit.value_or(1)) : readDegrees(value);
        if (read && !isLength)
            *read *= of.unit.value_or(1);
        if (read && *read >= minimum && *read <= maximum)
            return read;
        m_isUsable = false;
        m_problems.push_back({m_row, m_reader.m_table->fields[static_cast<std::size_t>(of.field)].name,
                              false, contract::formatted(why, {quotation(value)})});
        return std::nullopt;
    }

    const TransmitterReader &m_reader;
    int64_t m_row;
    const std::vector<const Cell *> &m_cells;
    std::vector<RowProblem> &m_problems;
    std::size_t m_item = 0;
    bool m_isUsable = true;
    bool m_isOmni = false;
};

std::vector<std::optional<TransmitterValues>>
TransmitterReader::read(int64_t row, const std::vector<const Cell *> &cells,
                        std::vector<RowProblem> &problems) const
{
    std::vector<std::optional<TransmitterValues>> transmitters;
    for (const TransmitterFields &fields : m_roles->transmitters) {
        RowContext context(*this, row, cells, problems);
        const std::size_t items =
            m_roles->shape == SiteShape::Lists ? context.itemCount(fields) : 1;
        for (std::size_t item = 0; item < items; ++item)
            transmitters.push_back(context.read(fields, item));
    }
    return transmitters;
}

} // namespace vlt::driver
