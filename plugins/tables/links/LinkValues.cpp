#include "plugins/tables/links/LinkValues.h"

#include "contract/TableTexts.h"
#include "plugins/tables/roles/HeightBase.h"
#include "plugins/tables/table/ColumnStatistics.h"
#include "plugins/tables/values/Quantity.h"

namespace vlt::driver {

using contract::formatted;
using contract::TableTextId;

namespace {

bool isOutOfRange(const TransmitterValue &value)
{
    return value.fault == ValueFault::OutOfRange;
}

} // namespace

/// The row that is read, and the list of its problems.
struct LinkValueReader::RowContext
{
    int64_t row;
    const std::vector<const Cell *> &cells;
    std::vector<RowProblem> &problems;

    void warn(const std::string &column, std::string text) const
    {
        problems.push_back({row, column, false, std::move(text)});
    }
};

LinkValueReader::LinkValueReader(const TableProfile &table, const LinkLayout &layout,
                                 const Vocabulary &vocabulary)
    : m_table(&table)
    , m_layout(&layout)
{
    m_words.isMissing = [&vocabulary](std::string_view text) { return vocabulary.isMissing(text); };
    m_words.aboveGround = [&vocabulary](std::string_view text) {
        return heightAboveGround(text, vocabulary);
    };
}

const std::string &LinkValueReader::nameOf(int field) const
{
    return m_table->fields[static_cast<std::size_t>(field)].name;
}

std::optional<double> LinkValueReader::heightM(const RowContext &context,
                                               const QuantityField &height) const
{
    if (!height.found())
        return std::nullopt;
    const std::string text = fieldText(context.cells, height.field);
    const TransmitterValue value = readAntennaHeightM(text, height.unit.value_or(1), m_words);
    if (value.isAbsent())
        context.warn(nameOf(height.field), formatted("MESS_TAB_NO_HEIGHT"));
    else if (value.fault)
        context.warn(nameOf(height.field),
                     formatted(isOutOfRange(value) ? TableTextId("MESS_TAB_HEIGHT_RANGE")
                                                   : TableTextId("MESS_TAB_HEIGHT_UNREADABLE"),
                               {quotation(text)}));
    return value.number;
}

std::optional<double> LinkValueReader::degrees(const RowContext &context,
                                               const QuantityField &angle, ReadAngle readAngle,
                                               TableTextId unreadable, TableTextId outOfRange) const
{
    const std::string text = fieldText(context.cells, angle.field);
    const TransmitterValue value = readAngle(text, angle.unit.value_or(1), m_words);
    if (value.fault)
        context.warn(nameOf(angle.field),
                     formatted(isOutOfRange(value) ? outOfRange : unreadable, {quotation(text)}));
    return value.number;
}

/// The frequency in a field. A value that cannot be used is reported.
std::optional<double> LinkValueReader::frequencyMHz(const RowContext &context,
                                                    const QuantityField &frequency,
                                                    bool &isUnreadable) const
{
    const std::string text = fieldText(context.cells, frequency.field);
    const TransmitterValue value = readFrequency(text, frequency.unit, m_words);
    if (value.fault) {
        isUnreadable = true;
        context.warn(nameOf(frequency.field),
                     formatted(isOutOfRange(value) ? TableTextId("MESS_TAB_FREQUENCY_NOT_POSITIVE")
                                                   : TableTextId("MESS_TAB_FREQUENCY_UNREADABLE"),
                               {quotation(text)}));
    }
    return value.number;
}

/// Sets the frequencies. An end without one gets that of the other end, else that of the link or of
/// its band.
void LinkValueReader::readFrequencies(const RowContext &context, LinkValues &values) const
{
    bool isUnreadable = false;
    int column = m_layout->frequency.found() ? m_layout->frequency.field : m_layout->band.field;
    for (std::size_t end = values.ends.size(); end-- > 0;) {
        if (m_layout->ends[end].frequency.found())
            column = m_layout->ends[end].frequency.field;
    }
    if (column < 0)
        return;
    for (std::size_t end = 0; end < values.ends.size(); ++end)
        values.ends[end].frequencyMHz =
            frequencyMHz(context, m_layout->ends[end].frequency, isUnreadable);
    std::optional<double> &a = values.ends[0].frequencyMHz;
    std::optional<double> &b = values.ends[1].frequencyMHz;
    for (const QuantityField *ofLink : {&m_layout->frequency, &m_layout->band}) {
        if (!a && !b)
            a = frequencyMHz(context, *ofLink, isUnreadable);
    }
    if (!a)
        a = b;
    if (!b)
        b = a;
    if (!a && !isUnreadable)
        context.warn(nameOf(column), formatted("MESS_TAB_NO_FREQUENCY"));
}

LinkValues LinkValueReader::read(int64_t row, const std::vector<const Cell *> &cells,
                                 std::vector<RowProblem> &problems) const
{
    const RowContext context = {row, cells, problems};
    LinkValues values;
    values.name = fieldText(cells, m_layout->name);
    for (std::size_t end = 0; end < values.ends.size(); ++end) {
        const LinkEndFields &fields = m_layout->ends[end];
        LinkEndValues &of = values.ends[end];
        of.identifier = fieldText(cells, fields.identifier);
        of.heightM = heightM(context, fields.height);
        of.azimuthDeg = degrees(context, fields.azimuth, readAzimuthDeg,
                                "MESS_TAB_AZIMUTH_UNREADABLE", "MESS_TAB_AZIMUTH_UNREADABLE");
        of.tiltDeg = degrees(context, fields.tilt, readTiltDeg, "MESS_TAB_TILT_UNREADABLE",
                             "MESS_TAB_TILT_RANGE");
    }
    readFrequencies(context, values);
    values.lengthM = lengthM(context);
    return values;
}

std::optional<double> LinkValueReader::lengthM(const RowContext &context) const
{
    const std::string text = fieldText(context.cells, m_layout->length.field);
    if (text.empty() || m_words.isMissing(text))
        return std::nullopt;
    // without a unit in the header or in the cell, the length cannot be compared
    const std::optional<double> metres = readLengthM(text, m_layout->length.unit.value_or(0));
    if (!metres)
        context.warn(nameOf(m_layout->length.field),
                     formatted("MESS_TAB_LENGTH_UNREADABLE", {quotation(text)}));
    return metres && *metres > 0 ? metres : std::nullopt;
}

/// The names of the columns with a role, of the ends or of the link.
std::string LinkValueReader::columnsOf(Role role) const
{
    std::string names;
    for (const LinkColumnRole &column : m_layout->columns) {
        if (column.role == role)
            names += (names.empty() ? "" : ", ") + nameOf(column.field);
    }
    return names;
}

std::vector<RowProblem> LinkValueReader::tableProblems() const
{
    std::vector<RowProblem> problems;
    const auto add = [&](std::string text) { problems.push_back({0, {}, false, std::move(text)}); };
    bool frequency = m_layout->frequency.found() || m_layout->band.found();
    bool height = false;
    bool seaLevel = false;
    for (const LinkEndFields &fields : m_layout->ends) {
        frequency = frequency || fields.frequency.found();
        height = height || fields.height.found();
        seaLevel = seaLevel || fields.seaLevelHeight >= 0;
        if (fields.seaLevelHeight >= 0)
            add(formatted("MESS_TAB_SEA_LEVEL", {nameOf(fields.seaLevelHeight)}));
    }
    if (!height && !seaLevel)
        add(formatted("MESS_TAB_NO_HEIGHTS"));
    if (!frequency)
        add(formatted("MESS_TAB_NO_FREQUENCIES"));
    if (const std::string columns = columnsOf(Role::Diameter); !columns.empty())
        add(formatted("MESS_TAB_DIAMETERS", {columns}));
    if (const std::string columns = columnsOf(Role::Repeater); !columns.empty())
        add(formatted("MESS_TAB_REPEATERS", {columns}));
    return problems;
}

} // namespace vlt::driver
