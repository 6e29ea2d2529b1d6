#pragma once

#include "geodata/TableReport.h"

namespace vlt::tables {

/// "132 = 40 used + 92 merged + 0 left out", in the user's language.
QString rowCountsText(const geodata::RowCounts &counts);

/// Writes the fate of every row of a table as a CSV file in UTF-8, with texts in the user's
/// language: row, fate, site or link, its first row, reason, columns, table. The file is the old
/// one or the whole new one.
///
/// @param connection  of the table
/// @param progress    may be empty; as in geodata::readRowReport()
/// @par Errors        the reader's reason or the system's as detail; that of the system with `path`
Stoppable<Done> writeRowReport(const QString &connection, const QString &path,
                               const Progress &progress);

/// Writes the rows to be corrected, see geodata::readRejects(), in the same way.
Stoppable<Done> writeRejects(const QString &connection, const QString &path,
                             const Progress &progress);

} // namespace vlt::tables
