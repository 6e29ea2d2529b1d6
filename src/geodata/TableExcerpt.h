#pragma once

#include "geodata/LayerInfo.h"

#include <QList>
#include <QStringList>

namespace vlt::geodata {

/// A column of a table that is a field of its layer.
struct TableColumn
{
    QString name;     ///< of the field
    int position = 0; ///< in the file, from 0
};

/// A row as it stands in the file.
struct ExcerptRow
{
    qint64 number = 0; ///< in the file, from 1
    QStringList cells; ///< without the empty ones at the end; long texts are cut
};

/// The first rows of a table as they stand in the file.
struct TableExcerpt
{
    QString sheet;             ///< that is read; empty for text files, which have none
    QStringList sheets;        ///< of the workbook, without hidden ones
    QList<qint64> headerRows;  ///< numbers of the rows that name the columns; none without a header
    QList<qint64> furtherRows; ///< those of further rows of the header, such as a row of units
    QList<TableColumn> columns;
    QList<ExcerptRow> rows; ///< from the first one; all of the header and some below it
};

/// Reads the first rows of a table connection. They are empty if its driver does not have them.
///
/// @par Errors   the driver's reason as detail.
Result<TableExcerpt> readTableExcerpt(const QString &connection);

/// A table as far as it is understood.
struct TableOverview
{
    TableExcerpt excerpt;
    QList<ColumnRole> roles;
};

/// Reads as much of a table as is understood, even if it is refused because it has no header or no
/// positions of links.
///
/// @par Errors   the driver's reason as detail, for other files.
Result<TableOverview> readTableOverview(const QString &connection);

} // namespace vlt::geodata
