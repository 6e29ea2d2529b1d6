#pragma once

#include "plugins/tables/ogr/PlainTransmitters.h"
#include "plugins/tables/ogr/TableLayer.h"

namespace vlt::driver {

/// Reads the rows of a table of sites.
class SiteRowReader
{
public:
    explicit SiteRowReader(const TableSource &source);

    SiteRow read(int64_t row, const FieldCells &fields, std::vector<RowProblem> &problems) const;

private:
    const TableFacts *m_facts;
    std::shared_ptr<const TableSystems> m_systems;
    PositionReader m_positions;
    TransmitterReader m_transmitters;
    PlainTransmitters m_plain;
    bool m_offersTransmitters; ///< features have values of the transmitters in their row
};

} // namespace vlt::driver
