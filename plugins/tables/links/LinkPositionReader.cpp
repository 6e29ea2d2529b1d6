#include "plugins/tables/links/LinkPositionReader.h"

#include "contract/TableTexts.h"
#include "plugins/tables/table/ColumnStatistics.h"
#include "plugins/tables/values/Quantity.h"

#include <cmath>

namespace vlt::driver {

namespace {

/// 180 degrees in the unit of the coordinates; 0 if they are not longitudes and latitudes.
double halfTurn(const OffsetScale &scale)
{
    constexpr double HalfTurnDegrees = 180;
    return scale.isOnEarth ? HalfTurnDegrees / scale.unit : 0;
}

} // namespace

LinkPositionReader::LinkPositionReader(const TableProfile &table, const LinkLayout &layout,
                                       const OffsetScale &scale, const SiteDirectory *sites)
    : m_table(&table)
    , m_layout(&layout)
    , m_readers{PositionReader(table, layout.ends[0].point, layout.unit, halfTurn(scale)),
                PositionReader(table, layout.ends[1].point, layout.unit, halfTurn(scale))}
    , m_scale(scale)
    , m_sites(sites)
{
    if (scale.isOnEarth)
        geod_init(&m_earth, scale.semiMajorM, scale.flattening);
}

/// The position of the site that a cell names.
Position LinkPositionReader::namedPosition(int64_t row, int field,
                                           const std::vector<const Cell *> &cells,
                                           std::vector<RowProblem> &problems) const
{
    const std::string name = fieldText(cells, field);
    const SiteDirectory::Entry *site = m_sites->find(name);
    if (site && site->position.found && !site->isAmbiguous)
        return site->position;
    using Text = contract::TableTextId;
    const Text why = name.empty()            ? Text("MESS_TAB_END_NOT_NAMED")
                     : !site                 ? Text("MESS_TAB_END_UNKNOWN")
                     : !site->position.found ? Text("MESS_TAB_END_UNPLACED")
                                             : Text("MESS_TAB_END_AMBIGUOUS");
    problems.push_back({row, m_table->fields[static_cast<std::size_t>(field)].name, true,
                        contract::formatted(why, {quotation(name)})});
    return {};
}

double LinkPositionReader::offsetM(int64_t row, const QuantityField &offset,
                                   const std::vector<const Cell *> &cells,
                                   std::vector<RowProblem> &problems) const
{
    const std::string text = fieldText(cells, offset.field);
    if (text.empty() || isMissingWord(text))
        return 0;
    const auto metres = readLengthM(text, offset.unit.value_or(1));
    if (!metres)
        problems.push_back({row, m_table->fields[static_cast<std::size_t>(offset.field)].name,
                            false,
                            contract::formatted("MESS_TAB_OFFSET_UNREADABLE", {quotation(text)})});
    return metres.value_or(0);
}

void LinkPositionReader::move(Position &position, double eastM, double northM) const
{
    if (eastM == 0 && northM == 0)
        return;
    if (!m_scale.isOnEarth) {
        position.x += eastM / m_scale.unit;
        position.y += northM / m_scale.unit;
        return;
    }
    const double degreesPerRadian = 180 / M_PI;
    double latitude = 0;
    double longitude = 0;
    geod_direct(&m_earth, position.y * m_scale.unit, position.x * m_scale.unit,
                std::atan2(eastM, northM) * degreesPerRadian, std::hypot(eastM, northM), &latitude,
                &longitude, nullptr);
    position.x = longitude / m_scale.unit;
    position.y = latitude / m_scale.unit;
}

std::array<Position, 2> LinkPositionReader::read(int64_t row,
                                                 const std::vector<const Cell *> &cells,
                                                 std::vector<RowProblem> &problems) const
{
    std::array<Position, 2> positions;
    for (std::size_t end = 0; end < positions.size(); ++end) {
        const LinkEndFields &fields = m_layout->ends[end];
        positions[end] = m_sites ? namedPosition(row, fields.identifier, cells, problems)
                                 : m_readers[end].read(row, cells, problems);
        const double eastM = offsetM(row, fields.dx, cells, problems);
        const double northM = offsetM(row, fields.dy, cells, problems);
        if (positions[end].found)
            move(positions[end], eastM, northM);
    }
    return positions;
}

} // namespace vlt::driver
