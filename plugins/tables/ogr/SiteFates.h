#pragma once

#include "plugins/tables/ogr/RowReport.h"
#include "plugins/tables/ogr/SiteRowReader.h"

#include <optional>

namespace vlt::driver {

/// The fates of the rows of a table of sites, and of the table of their transmitters.
class SiteFates final : public RowFates
{
public:
    explicit SiteFates(const TableSource &source);

    void read(const FieldCells &cells, ReportedRow &row) override;
    RowKind readSecond(const SecondTable &second, ReportedRow &row) override;

private:
    std::size_t siteOf(const FieldCells &cells, int64_t row);
    void setSite(std::size_t site, bool losesTransmitters, ReportedRow &row) const;

    TableSource m_source;
    SiteRowReader m_reader;
    PositionReader m_positions; ///< by which the rows of a site are found
    SiteIndex m_index;          ///< of the rows so far
    SiteNumbers m_sitesByKey;   ///< if the transmitters stand in another table
    std::optional<SectorRows> m_sectors;
};

} // namespace vlt::driver
