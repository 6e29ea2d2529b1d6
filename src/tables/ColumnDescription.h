#pragma once

#include <QString>
#include <QStringList>

namespace vlt::tables {

/// The meaning of a recognised column, in the chosen language, and its names in the table.
struct ColumnDescription
{
    QString meaning;
    QStringList columns; ///< empty if none was recognised
};

} // namespace vlt::tables
