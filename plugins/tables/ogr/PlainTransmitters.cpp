#include "plugins/tables/ogr/PlainTransmitters.h"

#include "contract/TransmitterRanges.h"

#include <algorithm>
#include <limits>

namespace vlt::driver {

PlainTransmitters::PlainTransmitters(const TableProfile &table, const SiteRoles &roles)
    : m_possible(roles.shape != SiteShape::Lists)
{
    constexpr contract::Range Positive{std::numeric_limits<double>::min(),
                                       std::numeric_limits<double>::max()};
    for (const TransmitterFields &fields : roles.transmitters) {
        m_possible = m_possible && !fields.heightBase.found();
        add(table, fields.height, contract::AntennaHeightM);
        add(table, fields.azimuth, contract::AzimuthDeg);
        add(table, fields.beamWidth, contract::BeamWidthDeg);
        add(table, fields.mechanicalTilt, contract::TiltDeg);
        add(table, fields.electricalTilt, contract::TiltDeg);
        add(table, {fields.frequency.field, {}}, Positive);
    }
}

void PlainTransmitters::add(const TableProfile &table, const QuantityField &of,
                            const contract::Range &range)
{
    if (!of.found())
        return;
    const double unit = of.unit.value_or(1);
    const auto field = static_cast<std::size_t>(of.field);
    m_possible =
        m_possible && unit > 0 && of.unitField < 0 && table.fields[field].type != FieldType::Text;
    m_columns.push_back({field, {range.minimum / unit, range.maximum / unit}});
}

bool PlainTransmitters::accepts(const FieldCells &cells) const
{
    return m_possible && std::all_of(m_columns.begin(), m_columns.end(), [&](const Column &column) {
               return !cells.cells()[column.field] ||
                      (!cells.isNull(column.field) &&
                       column.range.contains(cells.number(column.field)));
           });
}

} // namespace vlt::driver
