#pragma once

#include "sites/SiteColumnSet.h"
#include "tables/ColumnDescription.h"

#include <QList>

namespace vlt::sites {

/// One entry for each member of the set, in its order.
QList<tables::ColumnDescription> describeColumns(const SiteColumnSet &columns);

} // namespace vlt::sites
