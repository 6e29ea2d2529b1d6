#pragma once

#include "geodata/TableRow.h"
#include "platform/Result.h"

namespace vlt::tables {

/// The information page of a layer with the values of the site or link that begins in a row of its
/// table. A layer without such a page gives a list of all values.
///
/// @param projectDirectory  base of relative paths in the layer; may be empty
/// @par Errors  MESS_CANT_READ_LAYER with the path for a file that is not a layer; those of
///              readTableRow().
Result<QString> readObjectPage(const QString &layerFile, const QString &projectDirectory,
                               qint64 row);

/// The row in which the site or link begins to which a row of the table belongs; 0 for a row that
/// is left out.
///
/// @par Errors  as above.
Result<qint64> readFirstRow(const QString &layerFile, const QString &projectDirectory, qint64 row);

/// A page with the values of its field references. Values are texts, never markup.
QString filledPage(const QString &page, const QList<geodata::FieldValue> &fields);

} // namespace vlt::tables
