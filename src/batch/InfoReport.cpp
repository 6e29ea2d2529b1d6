#include "batch/InfoReport.h"

#include "batch/Console.h"
#include "language/VltLanguageManager.h"
#include "sites/ColumnDescription.h"
#include "sites/TableTexts.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace vlt::batch {

namespace {

constexpr qsizetype LineWidth = 80;

/// A label and what belongs to it.
struct Line
{
    QString label;
    QStringList values;
};

/// The values one after another, in further lines below the first where they are many.
QString wrapped(const QStringList &values, qsizetype indent)
{
    QString text;
    qsizetype column = indent;
    for (const QString &value : values) {
        if (!text.isEmpty()) {
            const bool fits = column + value.size() + 3 <= LineWidth;
            text += fits ? QStringLiteral("; ") : QStringLiteral(";\n") + QString(indent, u' ');
            column = fits ? column + 2 : indent;
        }
        text += oneLine(value);
        column += value.size();
    }
    return text;
}

QString aligned(const QList<Line> &lines)
{
    qsizetype width = 0;
    for (const Line &line : lines)
        width = qMax(width, line.label.size());
    QString text;
    for (const Line &line : lines) {
        const QString values = wrapped(line.values, width + 3);
        text += line.label.leftJustified(width) + QStringLiteral(" : ") +
                (values.isEmpty() ? QStringLiteral("-") : values) + QLatin1Char('\n');
    }
    return text;
}

QList<Line> fileLines(const sites::SiteFileInfo &file)
{
    return {
        {dico_label("MESS_CLI_FILE", "File"), {file.filePath}},
        {dico_label("MESS_CLI_FORMAT", "Format"), {file.format}},
        {dico_label("MESS_CLI_UNIT", "Unit"), {file.unit}},
        {dico_label("MESS_CLI_EPSG", "EPSG code"), {file.epsg}},
        {dico_label("MESS_CLI_SITE_COUNT", "Number of sites"), {QString::number(file.rowCount)}},
        {dico_label("MESS_CLI_LAYER", "Layer"), {file.layerName}},
        {dico_label("MESS_CLI_NAME_FIELD", "Column that names a site"), {file.nameField}},
        {dico_label("MESS_SRS_SITE_FILE", "Cartographic system of the site file"),
         {file.systems.source}},
        {dico_label("MESS_SRS_PROJECT", "Cartographic system of the target project"),
         {file.systems.target}}};
}

QList<Line> columnLines(const sites::SiteColumnSet &columns)
{
    QList<Line> lines;
    for (const sites::ColumnDescription &entry : sites::describeColumns(columns))
        lines.append({entry.meaning, entry.columns});
    return lines;
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
                        {QStringLiteral("text"), sites::tableText(problem.text)}});
    }
    return array;
}

QJsonObject columnsJson(const sites::SiteColumnSet &columns)
{
    return {{QStringLiteral("name"), columns.name},
            {QStringLiteral("x"), columns.x},
            {QStringLiteral("y"), columns.y},
            {QStringLiteral("terrainHeight"), columns.terrainHeight},
            {QStringLiteral("sectorIds"), QJsonArray::fromStringList(columns.sectorIds)},
            {QStringLiteral("heights"), QJsonArray::fromStringList(columns.heights)},
            {QStringLiteral("azimuths"), QJsonArray::fromStringList(columns.azimuths)},
            {QStringLiteral("tilts"), QJsonArray::fromStringList(columns.tilts)}};
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
    const QString where =
        place.isEmpty() ? QString() : place.join(QStringLiteral(", ")) + QStringLiteral(": ");
    return oneLine(where + sites::tableText(problem.text));
}

QString reportText(const InfoReport &report)
{
    return aligned(fileLines(report.file)) + QLatin1Char('\n') + report.file.description +
           QStringLiteral("\n\n") + aligned(columnLines(report.file.columns)) + QLatin1Char('\n') +
           problemsText(report.problems);
}

QString reportJson(const InfoReport &report)
{
    const sites::SiteFileInfo &file = report.file;
    const QJsonObject object{{QStringLiteral("file"), file.filePath},
                             {QStringLiteral("format"), file.format},
                             {QStringLiteral("unit"), file.unit},
                             {QStringLiteral("epsg"), file.epsg},
                             {QStringLiteral("rows"), file.rowCount},
                             {QStringLiteral("layer"), file.layerName},
                             {QStringLiteral("siteField"), file.nameField},
                             {QStringLiteral("sourceSrs"), file.systems.source},
                             {QStringLiteral("targetSrs"), file.systems.target},
                             {QStringLiteral("description"), file.description},
                             {QStringLiteral("columns"), columnsJson(report.file.columns)},
                             {QStringLiteral("problemCount"), report.problems.count},
                             {QStringLiteral("problems"), problemsJson(report.problems)}};
    return QString::fromUtf8(QJsonDocument(object).toJson());
}

} // namespace vlt::batch
