#pragma once

#include "plugins/tables/ogr/ProblemList.h"
#include "plugins/tables/ogr/SecondTable.h"
#include "plugins/tables/sites/SiteIndex.h"
#include "plugins/tables/sites/SiteLayout.h"

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace vlt::driver {

/// The sites of a table with the transmitters of another one.
struct JoinedSites
{
    std::shared_ptr<const SiteIndex> index;
    std::vector<TransmitterFields> transmitters; ///< columns of the table of transmitters
    ProblemList problems;                        ///< of the table of transmitters
};

/// Starts reading the rows of a table.
using OpenRows = std::function<std::unique_ptr<DataRows>()>;

/// Reads the sites of a table and the transmitters of another one, in which a column has the ids or
/// names of the sites. A row without an id continues the site of the row above, as merged cells do.
/// Nothing if there is no such column, if it names none of the sites, or if there are no columns of
/// transmitters.
///
/// @param table   properties of the table of sites, which `index` refers to, with `layout`: the
///                column of ids that joins becomes that of the sites
/// @param byName  the names of the columns suffice to join the tables
std::optional<JoinedSites> joinSectors(const TableProfile &table, SiteLayout &layout,
                                       const OpenRows &siteRows, const SecondTable &sectors,
                                       bool byName);

} // namespace vlt::driver
