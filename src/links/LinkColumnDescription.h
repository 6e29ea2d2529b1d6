#pragma once

#include "links/LinkColumnSet.h"
#include "tables/ColumnDescription.h"

namespace vlt::links {

/// One entry for each column of the set, in its order: the link's own, those of end A, those of
/// end B.
QList<tables::ColumnDescription> describeColumns(const LinkColumnSet &columns);

} // namespace vlt::links
