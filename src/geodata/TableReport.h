#pragma once

#include "contract/Progress.h"
#include "platform/Result.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

namespace vlt::geodata {

/// Numbers of rows by fate; rows = used + merged + leftOut.
struct RowCounts
{
    qint64 rows = 0;
    qint64 used = 0;    ///< they give a site or a link
    qint64 merged = 0;  ///< they add to a site that begins in another row
    qint64 leftOut = 0; ///< without a site or link that has a position
};

/// The numbers of a table, and of the table that completes it.
struct TableRowCounts
{
    RowCounts rows;
    std::optional<RowCounts> second;
    QString secondName; ///< its sheet, or its file if it is another one
};

/// Reads all rows and counts them.
///
/// @par Errors   the driver's reason as detail; the same for the functions below
Result<TableRowCounts> readRowCounts(const QString &connection);

/// A row and its fate.
struct ReportedRow
{
    QString table; ///< sheet, or file if the table completes another one
    qint64 row = 0;
    QString fate;        ///< a word of contract/TableReport.h
    QString site;        ///< id or name of the site or link; may be empty
    qint64 firstRow = 0; ///< of the site or link; 0 if the row is left out
    QStringList reasons; ///< English
    QStringList columns; ///< of each reason; may be empty
};

/// Calls `visit` with every row below the header that holds something, in the order of the file,
/// then with those of the table that completes it.
///
/// @param progress  may be empty; as in readSiteCheck()
Stoppable<qint64> readRowReport(const QString &connection, const Progress &progress,
                                const std::function<void(const ReportedRow &)> &visit);

/// The rows to be corrected, as a text in the encoding of the source, or in UTF-8 if that cannot
/// hold it: the rows before the data, then those that are left out, except sums and repeated
/// headers.
///
/// @param progress  may be empty; called at each of these rows
Stoppable<QByteArray> readRejects(const QString &connection, const Progress &progress);

} // namespace vlt::geodata
