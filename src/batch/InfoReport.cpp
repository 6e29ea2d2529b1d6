#include "batch/InfoReport.h"

#include "batch/AlignedText.h"
#include "batch/Console.h"
#include "language/ReaderText.h"
#include "language/VltLanguageManager.h"
#include "tables/ColumnRoles.h"
#include "tables/RowReport.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace vlt::batch {

namespace {

constexpr int MaxCandidates = 3; ///< coordinate systems of a table that declares none

QList<Line> fileLines(const InfoReport &report)
{
    const tables::TableFileInfo &file = report.file;
    QList<Line> lines = {
        {dico_label("MESS_CLI_FILE", "File"), {file.filePath}},
        {dico_label("MESS_CLI_FORMAT", "Format"), {file.format}},
        {dico_label("MESS_CLI_UNIT", "Unit"), {file.unit}},
        {dico_label("MESS_CLI_EPSG", "EPSG code"), {file.epsg}},
        {report.countLabel, {QString::number(file.rowCount)}},
        {dico_label("MESS_CLI_LAYER", "Layer"), {file.layerName}},
        {dico_label("MESS_CLI_NAME_FIELD", "Column that names a site"), {file.nameField}}};
    if (!file.encoding.isEmpty())
        lines.append({dico_label("MESS_CLI_ENCODING", "Encoding"), {file.encoding}});
    for (const InfoEntry &entry : report.further)
        lines.append({entry.label, {entry.value}});
    lines.append({report.systemLabel, {file.systems.source}});
    lines.append({dico_label("MESS_SRS_PROJECT", "Cartographic system of the target project"),
                  {file.systems.target}});
    return lines;
}

QList<Line> columnLines(const QList<tables::ColumnDescription> &columns)
{
    QList<Line> lines;
    for (const tables::ColumnDescription &entry : columns)
        lines.append({entry.meaning, entry.columns});
    return lines;
}

/// Columns by role, each with the evidence for it.
QString roleLines(const QList<geodata::ColumnRole> &roles)
{
    QList<Line> lines;
    for (const geodata::ColumnRole &role : roles) {
        const QString evidence = language::readerText(role.evidence);
        const bool isNamed = evidence.contains(role.column);
        lines.append(
            {tables::roleText(role),
             {isNamed ? evidence
                      : dico_label("MESS_FILE_REASON", "%1: %2").arg(role.column, evidence)}});
    }
    return aligned(lines) + QLatin1Char('\n');
}

/// The columns of the table, and of the one that completes it.
QString rolesText(const tables::TableFileInfo &file)
{
    if (file.roles.isEmpty())
        return {};
    const QString own =
        language::readerText(file.shape) + QLatin1Char('\n') + roleLines(file.roles);
    return file.second.table.isEmpty() ? own
                                       : own + tables::secondTitle(file.second) +
                                             QLatin1Char('\n') + roleLines(file.second.roles);
}

QJsonArray rolesJson(const QList<geodata::ColumnRole> &roles)
{
    QJsonArray array;
    for (const geodata::ColumnRole &role : roles) {
        QJsonObject object{{QStringLiteral("role"), role.role},
                           {QStringLiteral("column"), role.column},
                           {QStringLiteral("evidence"), language::readerText(role.evidence)}};
        if (!role.sector.isEmpty())
            object.insert(QStringLiteral("transmitter"), role.sector.toInt());
        array.append(object);
    }
    return array;
}

QString problemsText(const geodata::LayerProblems &problems)
{
    QString text = dico_label("MESS_CLI_PROBLEMS", "Problems") + QStringLiteral(" : ") +
                   QString::number(problems.count) + QLatin1Char('\n');
    for (const Problem &problem : problems.listed)
        text += QStringLiteral("  ") + problemText(problem) + QLatin1Char('\n');
    if (problems.count > problems.listed.size())
        text += QStringLiteral("  ...\n");
    return text;
}

QJsonArray problemsJson(const geodata::LayerProblems &problems)
{
    QJsonArray array;
    for (const Problem &problem : problems.listed) {
        const bool isError = problem.severity == Problem::Severity::Error;
        array.append(
            QJsonObject{{QStringLiteral("row"),
                         problem.row > 0 ? QJsonValue(problem.row) : QJsonValue(QJsonValue::Null)},
                        {QStringLiteral("column"), problem.column},
                        {QStringLiteral("severity"),
                         isError ? QStringLiteral("error") : QStringLiteral("warning")},
                        {QStringLiteral("text"), language::readerText(problem.text)}});
    }
    return array;
}

QList<Line> rowLines(const geodata::TableRowCounts &rows)
{
    QList<Line> lines = {{dico_label("MESS_CLI_ROWS", "Rows"), {tables::rowCountsText(rows.rows)}}};
    if (rows.second)
        lines.append({dico_label("MESS_CLI_SECOND_ROWS", "Rows of %1").arg(rows.secondName),
                      {tables::rowCountsText(*rows.second)}});
    return lines;
}

QJsonObject countsJson(const geodata::RowCounts &counts)
{
    return {{QStringLiteral("rows"), counts.rows},
            {QStringLiteral("used"), counts.used},
            {QStringLiteral("merged"), counts.merged},
            {QStringLiteral("leftOut"), counts.leftOut}};
}

QJsonArray candidatesJson(const QList<geodata::SystemCandidate> &candidates)
{
    QJsonArray array;
    for (const geodata::SystemCandidate &candidate : candidates.mid(0, MaxCandidates))
        array.append(QJsonObject{{QStringLiteral("code"), candidate.code},
                                 {QStringLiteral("name"), candidate.name},
                                 {QStringLiteral("area"), candidate.area},
                                 {QStringLiteral("longitude"), candidate.longitude},
                                 {QStringLiteral("latitude"), candidate.latitude}});
    return array;
}

QJsonArray findingsJson(const QList<geodata::PositionFinding> &findings)
{
    QJsonArray array;
    for (const geodata::PositionFinding &finding : findings) {
        QJsonObject object{{QStringLiteral("kind"), finding.kind},
                           {QStringLiteral("cure"), finding.cure},
                           {QStringLiteral("text"), language::readerText(finding.text)}};
        if (!finding.corrections.empty())
            object.insert(
                QStringLiteral("corrections"),
                QJsonDocument::fromJson(
                    QByteArray::fromStdString(contract::writeCorrections(finding.corrections)))
                    .array());
        array.append(object);
    }
    return array;
}

} // namespace

QString problemText(const Problem &problem)
{
    QStringList place;
    if (problem.row > 0)
        place << dico_label("MESS_CLI_ROW", "row") + QLatin1Char(' ') +
                     QString::number(problem.row);
    if (!problem.column.isEmpty())
        place << dico_label("MESS_CLI_COLUMN", "column") + QLatin1Char(' ') + problem.column;
    const QString text = language::readerText(problem.text);
    return oneLine(
        place.isEmpty()
            ? text
            : dico_label("MESS_FILE_REASON", "%1: %2").arg(place.join(QStringLiteral(", ")), text));
}

QString reportText(const InfoReport &report)
{
    return aligned(fileLines(report)) + QLatin1Char('\n') + report.file.description +
           QStringLiteral("\n\n") + aligned(columnLines(report.columns)) + QLatin1Char('\n') +
           rolesText(report.file) + aligned(rowLines(report.rows)) + QLatin1Char('\n') +
           problemsText(report.problems) +
           (report.mapping.isEmpty()
                ? QString()
                : dico_label("MESS_CLI_MAPPING", "Mapping file written: %1").arg(report.mapping) +
                      QLatin1Char('\n'));
}

QJsonObject reportJson(const InfoReport &report)
{
    const tables::TableFileInfo &file = report.file;
    QJsonObject object{{QStringLiteral("file"), file.filePath},
                       {QStringLiteral("format"), file.format},
                       {QStringLiteral("unit"), file.unit},
                       {QStringLiteral("epsg"), file.epsg},
                       {QStringLiteral("rows"), file.rowCount},
                       {QStringLiteral("layer"), file.layerName},
                       {QStringLiteral("siteField"), file.nameField},
                       {QStringLiteral("sourceSrs"), file.systems.source},
                       {QStringLiteral("targetSrs"), file.systems.target},
                       {QStringLiteral("description"), file.description},
                       {QStringLiteral("columns"), report.columnNames},
                       {QStringLiteral("problemCount"), report.problems.count},
                       {QStringLiteral("problems"), problemsJson(report.problems)}};
    object.insert(QStringLiteral("rowCounts"), countsJson(report.rows.rows));
    if (report.rows.second) {
        QJsonObject second = countsJson(*report.rows.second);
        second.insert(QStringLiteral("table"), report.rows.secondName);
        object.insert(QStringLiteral("secondRowCounts"), second);
    }
    if (!file.candidates.isEmpty())
        object.insert(QStringLiteral("systemCandidates"), candidatesJson(file.candidates));
    if (!report.problems.findings.isEmpty())
        object.insert(QStringLiteral("findings"), findingsJson(report.problems.findings));
    if (!file.encoding.isEmpty())
        object.insert(QStringLiteral("encoding"), file.encoding);
    if (!file.roles.isEmpty()) {
        object.insert(QStringLiteral("shape"), language::readerText(file.shape));
        object.insert(QStringLiteral("roles"), rolesJson(file.roles));
    }
    if (!file.second.table.isEmpty()) {
        object.insert(QStringLiteral("secondTable"), file.second.table);
        object.insert(QStringLiteral("secondRoles"), rolesJson(file.second.roles));
    }
    if (!report.mapping.isEmpty())
        object.insert(QStringLiteral("mapping"), report.mapping);
    for (const InfoEntry &entry : report.further)
        object.insert(entry.key, entry.value);
    return object;
}

} // namespace vlt::batch
