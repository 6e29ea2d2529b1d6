#pragma once

#include "sites/SiteColumnSet.h"

#include <QList>

namespace vlt::sites {

/// What a recognised column means, in the chosen language, and which columns of the table it is.
struct ColumnDescription
{
    QString meaning;
    QStringList columns; ///< empty where none was recognised
};

/// One entry for each member of the set, in its order.
QList<ColumnDescription> describeColumns(const SiteColumnSet &columns);

} // namespace vlt::sites
