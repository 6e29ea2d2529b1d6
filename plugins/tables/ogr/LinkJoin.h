#pragma once

#include "plugins/tables/ogr/ProblemList.h"
#include "plugins/tables/ogr/SecondTable.h"
#include "plugins/tables/roles/Vocabulary.h"
#include "plugins/tables/sites/SiteDirectory.h"
#include "plugins/tables/sites/TableDeclaration.h"

#include <memory>
#include <optional>

namespace vlt::driver {

/// How well the start of a sheet suits a table of sites at the ends of links, from 0 to
/// HighestSiteSuitability: it has positions, and is no table of links itself.
int endSiteSuitability(const TableProfile &start, const Vocabulary &vocabulary);

/// The sites at the ends of links.
struct EndSites
{
    std::shared_ptr<const SiteDirectory> directory;
    TableDeclaration declaration; ///< of the table of sites
    ProblemList problems;         ///< of that table
};

/// Reads the positions of sites by their ids and names. Nothing if the table has no positions, or
/// neither ids nor names.
std::optional<EndSites> readEndSites(const SecondTable &sites);

} // namespace vlt::driver
