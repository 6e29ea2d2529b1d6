#pragma once

#include "platform/Result.h"

#include <QList>
#include <QString>

namespace vlt::geodata {

/// A field of a site or link and its value as text; empty for none.
struct FieldValue
{
    QString name;
    QString text;
};

/// The fields of the site or link that begins in a row of a table's file, in their order; empty if
/// none does.
///
/// @par Errors  the driver's reason as detail
Result<QList<FieldValue>> readTableRow(const QString &connection, qint64 row);

} // namespace vlt::geodata
