#pragma once

#include "plugins/tables/ogr/LinkJoin.h"
#include "plugins/tables/ogr/LinkRowReader.h"
#include "plugins/tables/ogr/RowReport.h"

#include <optional>

namespace vlt::driver {

/// The fates of the rows of a table of links, and of the table of the sites at their ends.
class LinkFates final : public RowFates
{
public:
    explicit LinkFates(const TableSource &source);

    void read(const FieldCells &cells, ReportedRow &row) override;
    RowKind readSecond(const SecondTable &second, ReportedRow &row) override;

private:
    TableSource m_source;
    LinkRowReader m_reader;
    std::optional<EndSiteRows> m_endSites;
};

} // namespace vlt::driver
