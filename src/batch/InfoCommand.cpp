#include "batch/InfoCommand.h"

#include "batch/Console.h"
#include "batch/Help.h"
#include "batch/InfoReport.h"
#include "batch/LayerCommand.h"
#include "batch/MappingOptions.h"
#include "batch/RowOutputs.h"
#include "batch/StartUp.h"
#include "contract/QueryOptions.h"
#include "geodata/LayerProblems.h"
#include "language/VltLanguageManager.h"
#include "links/LinkColumnDescription.h"
#include "links/LinkFileInfo.h"
#include "sites/SiteColumnDescription.h"
#include "sites/SiteFileInfo.h"
#include "tables/SystemProblems.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <limits>
#include <optional>

namespace vlt::batch {

namespace {

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

QJsonObject endJson(const links::LinkEndColumns &end)
{
    return {{QStringLiteral("identifier"), end.identifier},
            {QStringLiteral("longitude"), end.longitude},
            {QStringLiteral("latitude"), end.latitude},
            {QStringLiteral("height"), end.height},
            {QStringLiteral("frequency"), end.frequency},
            {QStringLiteral("azimuth"), end.azimuth},
            {QStringLiteral("tilt"), end.tilt},
            {QStringLiteral("dx"), end.dx},
            {QStringLiteral("dy"), end.dy}};
}

QJsonObject columnsJson(const links::LinkColumnSet &columns)
{
    return {{QStringLiteral("name"), columns.name},
            {QStringLiteral("band"), columns.band},
            {QStringLiteral("length"), columns.length},
            {QStringLiteral("endA"), endJson(columns.tx)},
            {QStringLiteral("endB"), endJson(columns.rx)}};
}

InfoReport siteReport(const sites::SiteFileInfo &file)
{
    InfoReport report;
    report.file = file;
    report.countLabel = dico_label("MESS_CLI_SITE_COUNT", "Number of sites");
    report.systemLabel = dico_label("MESS_SRS_SITE_FILE", "Cartographic system of the site file");
    report.columns = sites::describeColumns(file.columns);
    report.columnNames = columnsJson(file.columns);
    if (const auto nameless = sites::missingNameField(file)) {
        report.problems.listed.prepend(*nameless);
        ++report.problems.count;
    }
    return report;
}

InfoReport linkReport(const links::LinkFileInfo &file)
{
    InfoReport report;
    report.file = file;
    report.countLabel = dico_label("MESS_CLI_LINK_COUNT", "Number of links");
    report.systemLabel = dico_label("MESS_SRS_LINK_FILE", "Cartographic system of the link file");
    report.further = {
        {QStringLiteral("endLayer"), dico_label("MESS_CLI_END_LAYER", "Layer of the link ends"),
         file.endLayerName},
        {QStringLiteral("linkField"), dico_label("MESS_CLI_LINK_FIELD", "Column that names a link"),
         file.linkNameField},
        {QStringLiteral("frequencyUnit"),
         dico_label("MESS_CLI_FREQUENCY_UNIT", "Unit of the frequency band"),
         file.columns.frequencyUnit},
        {QStringLiteral("lengthUnit"), dico_label("MESS_CLI_LENGTH_UNIT", "Unit of the length"),
         file.columns.lengthUnit}};
    report.columns = links::describeColumns(file.columns);
    report.columnNames = columnsJson(file.columns);
    return report;
}

/// Adds the results of reading the rows.
Result<InfoReport> withRows(InfoReport report, contract::TableKind kind)
{
    // The progress line never stops the work, so there is a value.
    const tables::TableFileInfo &file = report.file;
    const QString source = file.systems.source.isEmpty()
                               ? QString()
                               : QLatin1String(contract::query::SourceSystem) + QLatin1Char('=') +
                                     file.systems.source + QLatin1Char(',');
    const QString connection =
        tables::withTerrain(file.reading.connection(kind, file.filePath, source), file.terrainArea);
    const Result<geodata::SiteCheck> check = *geodata::readSiteCheck(connection, {}, file.systems);
    if (!check)
        return check.error();
    const Result<geodata::TableRowCounts> rows = geodata::readRowCounts(connection);
    if (!rows)
        return rows.error();
    report.rows = rows.value();
    report.connection = connection;
    const geodata::SystemCheck &systems = check.value().systems;
    const QList<Problem> ofSystems = tables::systemProblems(file, file.systems, systems);
    const geodata::LayerProblems others =
        tables::otherProblems(file, file.systems, systems, check.value().problems);
    const auto firstOfRow = std::find_if(others.listed.begin(), others.listed.end(),
                                         [](const Problem &problem) { return problem.row > 0; });
    const qsizetype general = firstOfRow - others.listed.begin();
    report.problems.count += ofSystems.size() + others.count;
    report.problems.listed +=
        others.listed.first(general) + ofSystems + others.listed.sliced(general);
    report.problems.findings = others.findings;
    return report;
}

Result<InfoReport> readTable(const QString &path, bool isLinks, const tables::TableReading &reading,
                             const project::ProjectContext &project)
{
    if (isLinks) {
        const auto file = links::readLinkFileInfoAs(path, project, reading);
        return file ? withRows(linkReport(file.value()), contract::TableKind::Links) : file.error();
    }
    const auto file = sites::readSiteFileInfoAs(path, project, reading);
    return file ? withRows(siteReport(file.value()), contract::TableKind::Sites) : file.error();
}

/// Prints several tables as one object; refused tables have an error in it.
ExitStatus printJson(const QList<Result<InfoReport>> &outcomes)
{
    QJsonArray tables;
    ExitStatus status = ExitStatus::Done;
    for (const Result<InfoReport> &outcome : outcomes) {
        tables.append(outcome ? reportJson(outcome.value())
                              : errorJson(outcome.error(), ExitStatus::Refused));
        if (outcome)
            continue;
        status = ExitStatus::Refused;
        printError(explain(outcome.error()));
    }
    const QJsonObject object{{QStringLiteral("tables"), tables}};
    const ExitStatus printed = printResult(QString::fromUtf8(QJsonDocument(object).toJson()));
    return printed == ExitStatus::Done ? status : printed;
}

ExitStatus printReport(const Result<InfoReport> &outcome, bool json)
{
    if (!outcome)
        return refuse(outcome.error());
    return printResult(json ? QString::fromUtf8(QJsonDocument(reportJson(outcome.value())).toJson())
                            : reportText(outcome.value()));
}

CommandSyntax syntax()
{
    CommandSyntax syntax;
    syntax.name = QStringLiteral("info");
    syntax.usage = QStringLiteral("TABLE...");
    syntax.summary = dico_label("MESS_HELP_INFO_SUMMARY", "show the properties of tables");
    syntax.description =
        dico_label("MESS_HELP_INFO",
                   "Shows the properties of tables of sites or links: format, unit, coordinate "
                   "systems, recognised columns, and the rows that cannot be used.");
    syntax.inputs = {1, std::numeric_limits<int>::max(), QStringLiteral("TABLE"),
                     dico_label("MESS_HELP_INFO_TABLE",
                                "Site or link table (.xls .xlsx .xml .csv); one or more."),
                     dico_label("MESS_USE_NO_TABLE", "no table given")};
    syntax.options =
        QList<QCommandLineOption>{
            {QStringLiteral("link"),
             dico_label("MESS_OPT_INFO_LINK", "The tables have microwave links, not sites.")}} +
        readingOptions() + mappingOutputOptions() + rowOutputOptions() +
        QList{secondFileOption(contract::TableKind::Sites),
              secondFileOption(contract::TableKind::Links)};
    syntax.examples =
        QStringLiteral("  vltlayers info sites.xlsx\n"
                       "  vltlayers info --link links.xlsx\n"
                       "  vltlayers info sites.csv --write-mapping\n"
                       "  vltlayers info sites.csv --write-mapping --cures\n"
                       "  vltlayers info sites.csv --report rows.csv --rejects corrections.csv\n"
                       "  vltlayers info --project city.gvw --json \"my sites.csv\"\n");
    return syntax;
}

/// How each table is to be read.
///
/// @par Errors   those of a wrong usage.
Result<QList<tables::TableReading>> readReadings(const QCommandLineParser &parser, bool isLinks)
{
    if (isLinks && parser.isSet(QStringLiteral("sectors")))
        return wrongUsage(
            dico_label("MESS_USE_SECTORS_OF_LINKS", "--sectors and --link cannot be combined"));
    if (!isLinks && parser.isSet(QStringLiteral("sites")))
        return wrongUsage(dico_label("MESS_USE_SITES_OF_LINKS", "--sites needs --link"));
    if (const auto error = checkMappingOutput(parser))
        return *error;
    const QStringList tables = parser.positionalArguments();
    const auto kind = isLinks ? contract::TableKind::Links : contract::TableKind::Sites;
    QList<tables::TableReading> readings;
    for (const QString &table : tables) {
        const Result<tables::TableReading> reading = readReading(parser, kind, table);
        if (!reading)
            return reading.error();
        readings << reading.value();
    }
    if (tables.size() > 1 && !parser.value(QStringLiteral("write-mapping")).isEmpty())
        return wrongUsage(
            dico_label("MESS_USE_ONE_MAPPING",
                       "--write-mapping with the name of a file can be used with one table only"));
    return readings;
}

/// Prints the results of all tables, as text with empty lines between them.
ExitStatus printReports(const QList<Result<InfoReport>> &outcomes, bool json)
{
    if (json && outcomes.size() > 1)
        return printJson(outcomes);
    ExitStatus status = ExitStatus::Done;
    for (const Result<InfoReport> &outcome : outcomes) {
        if (const ExitStatus reported = printReport(outcome, json); reported != ExitStatus::Done)
            status = reported;
        if (&outcome != &outcomes.constLast())
            printOut(QStringLiteral("\n"));
    }
    return status;
}

ExitStatus run(const QCommandLineParser &parser, const GlobalOptions &options)
{
    const bool isLinks = parser.isSet(QStringLiteral("link"));
    const QStringList tables = parser.positionalArguments();
    Result<QList<tables::TableReading>> read = readReadings(parser, isLinks);
    if (!read)
        return refuseUsage(read.error());
    QList<tables::TableReading> readings = read.value();
    if (const auto error = checkMapping(parser))
        return refuse(*error);
    StatedMappings stated;
    for (qsizetype i = 0; i < tables.size(); ++i) {
        if (const auto applied = stated.apply(parser, tables[i], readings[i]); !applied)
            return refuseUsage(applied.error());
    }
    const Result<RowOutputs> outputs = readRowOutputs(parser);
    if (!outputs)
        return refuseUsage(outputs.error());
    const Result<Surroundings> surroundings = startUp(options);
    if (!surroundings)
        return refuse(surroundings.error());
    const QStringList inputs = tables + QStringList{parser.value(QStringLiteral("sectors")),
                                                    parser.value(QStringLiteral("sites")),
                                                    surroundings.value().project.projectPath};
    if (const auto error = checkRowOutputs(outputs.value(), inputs))
        return refuse(*error);
    QList<Result<InfoReport>> outcomes;
    for (qsizetype i = 0; i < tables.size(); ++i) {
        const QString &table = tables[i];
        Result<InfoReport> report = readTable(QFileInfo(table).absoluteFilePath(), isLinks,
                                              readings[i], surroundings.value().project);
        if (report) {
            InfoReport complete = report.value();
            const Result<QString> written =
                writeMapping(parser, table, complete.connection, complete.problems.findings);
            if (!written)
                return refuse(written.error());
            complete.mapping = written.value();
            report = complete;
        }
        outcomes << (report ? report : Result<InfoReport>(report.error().withPath(table)));
    }
    if (const Result<InfoReport> &only = outcomes.constFirst();
        only && !outputs.value().isEmpty()) {
        const auto written =
            writeRowOutputs(outputs.value(), only.value().connection, options.quiet);
        if (!written)
            return refuse(written.error());
    }
    return printReports(outcomes, options.json);
}

} // namespace

Command infoCommand()
{
    return {syntax, run};
}

} // namespace vlt::batch
