#include "batch/InfoCommand.h"

#include "batch/Console.h"
#include "batch/Help.h"
#include "batch/InfoReport.h"
#include "batch/LayerCommand.h"
#include "batch/StartUp.h"
#include "geodata/LayerProblems.h"
#include "language/VltLanguageManager.h"
#include "links/LinkColumnDescription.h"
#include "links/LinkFileInfo.h"
#include "sites/SiteFileInfo.h"
#include "sites/SystemProblems.h"

#include <QFileInfo>
#include <QJsonArray>

namespace vlt::batch {

namespace {

const QString Examples =
    QStringLiteral("\nExamples:\n"
                   "  vltlayers info sites.xlsx\n"
                   "  vltlayers info --link links.xlsx\n"
                   "  vltlayers info --project city.gvw --json \"my sites.csv\"\n");

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

ExitStatus tell(InfoReport report, const QString &kind, const QString &table, bool json)
{
    if (report.file.error)
        return refuse({report.file.error->key, report.file.error->text, table},
                      report.file.errorDetail);

    const Result<geodata::SiteCheck> check =
        geodata::readSiteCheck(kind + report.file.filePath, {}, report.file.systems);
    if (!check)
        return refuse({check.error().key, check.error().text, table});
    const QList<Problem> ofSystems =
        sites::systemProblems(report.file.unit, report.file.systems, check.value().systems);
    report.problems.count += ofSystems.size() + check.value().problems.count;
    report.problems.listed += ofSystems + check.value().problems.listed;
    return printResult(json ? reportJson(report) : reportText(report));
}

} // namespace

ExitStatus runInfo(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Tells what a table of sites or links holds: format, unit, coordinate systems,\n"
        "recognised columns, and the rows that cannot be used."));
    parser.addPositionalArgument(QStringLiteral("TABLE"),
                                 QStringLiteral("Site or link table (.xls .xlsx .xml .csv)."),
                                 QStringLiteral("info TABLE"));
    parser.addOption(
        {QStringLiteral("link"), QStringLiteral("The table has microwave links, not sites.")});
    addGlobalOptions(parser);
    const Result<GlobalOptions> options =
        parseArguments(parser, arguments, {1, 1, QStringLiteral("table")});
    if (const auto answered = answerHelp(parser, options, Examples))
        return *answered;

    const Result<Surroundings> surroundings = startUp(options.value());
    if (!surroundings)
        return refuse(surroundings.error());
    const QString table = parser.positionalArguments().constFirst();
    const QString path = QFileInfo(table).absoluteFilePath();
    const sites::ProjectContext &project = surroundings.value().project;
    const bool json = options.value().json;
    return parser.isSet(QStringLiteral("link"))
               ? tell(linkReport(links::readLinkFileInfo(path, project)), QStringLiteral("link:"),
                      table, json)
               : tell(siteReport(sites::readSiteFileInfo(path, project)), QStringLiteral("site:"),
                      table, json);
}

} // namespace vlt::batch
