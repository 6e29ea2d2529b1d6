#pragma once

#include "platform/Result.h"

#include <QStringList>

namespace vlt::tables {

/// Whether information pages are to be in French; they are in English in every other language.
bool isFrench(const QString &language);

/// A field reference: the column's name in square brackets. The builder puts the value of the
/// picked object in its place.
QString fieldReference(const QString &column);

/// A row of a page's table: the head, then a cell for each column, empty for an empty name. Empty
/// where there is no column at all.
QString tableRow(const QString &head, const QStringList &columns);

/// The template "<name>_fr.html" or "<name>_en.html" of the pylons' folder, without its line feeds.
///
/// @par Errors   MESS_MISSING_CONF_FILE with the path.
Result<QString> readInfoTemplate(const QString &installDir, const QString &name,
                                 const QString &language);

} // namespace vlt::tables
