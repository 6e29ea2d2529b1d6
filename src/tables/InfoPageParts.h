#pragma once

#include "platform/Result.h"

#include <QStringList>

namespace vlt::tables {

/// Whether information pages are in French; for every other language they are in English.
bool isFrench(const QString &language);

/// A field reference: the column's name in square brackets. The builder replaces it with the value
/// of the picked object.
QString fieldReference(const QString &column);

/// A row of a page's table: the head, then a cell for each column; the cell of an empty name is
/// empty. The row is empty if all names are.
QString tableRow(const QString &head, const QStringList &columns);

/// The template "<name>_fr.html" or "<name>_en.html" of the pylons' folder, without its line feeds.
///
/// @par Errors   MESS_MISSING_CONF_FILE with the path.
Result<QString> readInfoTemplate(const QString &installDir, const QString &name,
                                 const QString &language);

} // namespace vlt::tables
