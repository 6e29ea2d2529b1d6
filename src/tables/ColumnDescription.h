#pragma once

#include <QString>
#include <QStringList>

namespace vlt::tables {

/// What a recognised column means, in the chosen language, and which columns of the table it is.
struct ColumnDescription
{
    QString meaning;
    QStringList columns; ///< empty where none was recognised
};

} // namespace vlt::tables
