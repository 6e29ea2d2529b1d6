#include "batch/SiteCommand.h"

#include "batch/Console.h"
#include "batch/Help.h"
#include "batch/InfoReport.h"
#include "batch/LayerCommand.h"
#include "batch/ProgressLine.h"
#include "batch/SiteOptions.h"
#include "language/VltLanguageManager.h"
#include "tables/ResolvedConnection.h"
#include "tables/SystemObstacle.h"

#include <QFileInfo>
#include <QJsonDocument>

namespace vlt::batch {

namespace {

CommandSyntax syntax()
{
    CommandSyntax syntax;
    syntax.name = QStringLiteral("site");
    syntax.usage = QStringLiteral("TABLE -o OUT.lay");
    syntax.summary = dico_label("MESS_HELP_SITE_SUMMARY", "make a layer of sites");
    syntax.description =
        dico_label("MESS_HELP_SITE", "Makes a site layer from a table, like the wizard.");
    syntax.inputs = {1, 1, QStringLiteral("TABLE"),
                     dico_label("MESS_HELP_SITE_TABLE", "Site table (.xls .xlsx .xml .csv)."),
                     dico_label("MESS_USE_NO_TABLE", "no table given")};
    syntax.options = layerOptions(contract::TableKind::Sites);
    syntax.examples = QStringLiteral(
        "  vltlayers site sites.xlsx -o sites.lay\n"
        "  vltlayers site sites.csv --project city.gvw --target-srs 2154 -o sites.lay\n"
        "  vltlayers site sites.csv --sectors antennas.csv -o sites.lay\n"
        "  vltlayers site sites.csv --sector-radius 150 --transparency 40 \\\n"
        "      --pylon-type 2 --sector-colors \"Pure colors\" -o sites.lay\n");
    syntax.lists = catalogueLists;
    return syntax;
}

/// Reads the sites through the same connection as the layer.
Result<LayerOutcome> placeSites(const sites::SiteLayerInput &input, bool quiet)
{
    const geodata::SystemPair systems{input.sourceSrs, input.targetSrs};
    const QString connection = tables::withTerrain(
        tables::resolvedConnection(sites::siteQuery(input), input.project.directory()),
        input.file.terrainArea);
    ProgressLine line(dico_label("MESS_CLI_READING", "Reading the sites"), !quiet);
    // The progress line never stops the work, so there is a value.
    const Result<geodata::SiteCheck> check =
        *geodata::readSiteCheck(connection, line.progress(), systems);
    if (!check)
        return check.error();
    return layerOutcome(check.value(), input.file, systems);
}

ExitStatus makeLayer(const sites::SiteLayerInput &input, const LayerRequest &request,
                     const GlobalOptions &options)
{
    const Result<LayerOutcome> outcome = placeSites(input, options.quiet);
    if (!outcome)
        return refuse(outcome.error().withPath(request.table));
    if (const auto unknown =
            tables::undeclaredObstacle(input.file, {input.sourceSrs, input.targetSrs})) {
        warnOfSystems(outcome.value());
        return refuse(unknown->withPath(request.table));
    }
    if (outcome.value().placed == 0) {
        warnOfSystems(outcome.value());
        return refuse(
            {QStringLiteral("MESS_CLI_NONE_PLACED"),
             QStringLiteral("none of its sites has a position; \"vltlayers info\" shows why"),
             request.table});
    }
    if (const auto failed = writeLayer(request.output, sites::makeSiteLayer(input)))
        return *failed;

    const geodata::SystemPair systems{input.sourceSrs, input.targetSrs};
    if (!options.quiet) {
        warnOfLayer(outcome.value(), systems);
        if (const auto nameless = sites::missingNameField(input.file))
            printError(problemText(*nameless));
    }
    if (!options.json)
        return ExitStatus::Done;
    QJsonObject object = layerJson(request, outcome.value(), systems);
    object.insert(QStringLiteral("sites"), outcome.value().placed);
    return printResult(QString::fromUtf8(QJsonDocument(object).toJson()));
}

ExitStatus runParsed(const QCommandLineParser &parser, const GlobalOptions &options,
                     const Surroundings &surroundings)
{
    const auto read = readLayerRequest(parser, contract::TableKind::Sites, surroundings, {});
    if (const ExitStatus *stopped = std::get_if<ExitStatus>(&read))
        return *stopped;
    const auto &request = std::get<LayerRequest>(read);

    sites::SiteLayerInput input;
    const auto file = sites::readSiteFileInfoAs(QFileInfo(request.table).absoluteFilePath(),
                                                surroundings.project, request.reading);
    if (!file)
        return refuse(file.error().withPath(request.table));
    input.file = file.value();
    input.file.isUndeclared =
        input.file.isUndeclared && !parser.isSet(QStringLiteral("source-srs"));
    const geodata::SystemPair systems = chosenSystems(parser, input.file.systems);
    if (const auto refusal = tables::systemRefusal(systems))
        return refuse(*refusal);
    input.sourceSrs = systems.source;
    input.targetSrs = systems.target;
    input.representation = request.pylons;
    input.catalogues = request.catalogues;
    input.project = surroundings.project;
    input.installDir = surroundings.installDir;
    input.language = surroundings.language;
    return makeLayer(input, request, options);
}

ExitStatus run(const QCommandLineParser &parser, const GlobalOptions &options)
{
    if (parser.value(QStringLiteral("output")).isEmpty())
        return refuseUsage(
            wrongUsage(dico_label("MESS_USE_NO_OUTPUT", "no output file given (-o OUT.lay)")));
    if (const auto error = checkStandardOutput(parser, {QStringLiteral("json")}))
        return refuseUsage(*error);
    if (const auto numbers = readSiteNumbers(parser); !numbers)
        return refuseUsage(numbers.error());

    const Result<Surroundings> surroundings = startUp(options);
    if (!surroundings)
        return refuse(surroundings.error());
    return runParsed(parser, options, surroundings.value());
}

} // namespace

Command siteCommand()
{
    return {syntax, run};
}

} // namespace vlt::batch
