#include "tables/RowReport.h"

#include "contract/TableReport.h"
#include "language/Numbers.h"
#include "language/ReaderText.h"
#include "language/VltLanguageManager.h"
#include "platform/AtomicFile.h"

#include <algorithm>

namespace vlt::tables {

namespace {

namespace report = contract::report;

QString fateText(const QString &fate)
{
    if (fate == QLatin1String(report::Used))
        return dico_label("MESS_FATE_USED", "used");
    if (fate == QLatin1String(report::Merged))
        return dico_label("MESS_FATE_MERGED", "merged");
    return dico_label("MESS_FATE_LEFT_OUT", "left out");
}

/// A line of a CSV file (RFC 4180).
QByteArray csvLine(const QStringList &cells)
{
    QStringList quoted;
    for (QString cell : cells) {
        const bool isPlain = std::none_of(cell.cbegin(), cell.cend(), [](QChar c) {
            return c == u',' || c == u'"' || c == u'\n' || c == u'\r';
        });
        quoted << (isPlain ? cell : u'"' + cell.replace(u'"', QStringLiteral("\"\"")) + u'"');
    }
    return quoted.join(u',').toUtf8() + '\n';
}

QByteArray lineOf(const geodata::ReportedRow &row)
{
    QStringList reasons;
    for (const QString &reason : row.reasons)
        reasons << language::readerText(reason);
    QStringList columns = row.columns;
    columns.removeAll(QString());
    columns.removeDuplicates();
    return csvLine({QString::number(row.row), fateText(row.fate), row.site,
                    row.firstRow > 0 ? QString::number(row.firstRow) : QString(),
                    reasons.join(QStringLiteral("; ")), columns.join(QStringLiteral("; ")),
                    row.table});
}

} // namespace

QString rowCountsText(const geodata::RowCounts &counts)
{
    return dico_label("MESS_ROW_COUNTS", "%1 = %2 used + %3 merged + %4 left out")
        .arg(language::wholeNumber(counts.rows), language::wholeNumber(counts.used),
             language::wholeNumber(counts.merged), language::wholeNumber(counts.leftOut));
}

Stoppable<Done> writeRowReport(const QString &connection, const QString &path,
                               const Progress &progress)
{
    QByteArray text = csvLine(
        {dico_label("MESS_REPORT_ROW", "row"), dico_label("MESS_REPORT_FATE", "fate"),
         dico_label("MESS_REPORT_SITE", "site or link"),
         dico_label("MESS_REPORT_FIRST_ROW", "first row"),
         dico_label("MESS_REPORT_REASON", "reason"), dico_label("MESS_REPORT_COLUMNS", "columns"),
         dico_label("MESS_REPORT_TABLE", "table")});
    const auto read = geodata::readRowReport(
        connection, progress, [&text](const geodata::ReportedRow &row) { text += lineOf(row); });
    if (!read)
        return std::nullopt;
    if (!*read)
        return read->error();
    return platform::writeWhole(path, text, platform::Access::Shared);
}

Stoppable<Done> writeRejects(const QString &connection, const QString &path,
                             const Progress &progress)
{
    const Stoppable<QByteArray> text = geodata::readRejects(connection, progress);
    if (!text)
        return std::nullopt;
    if (!*text)
        return text->error();
    return platform::writeWhole(path, text->value(), platform::Access::Shared);
}

} // namespace vlt::tables
