#include "batch/SiteCommand.h"

#include "batch/Console.h"
#include "batch/Help.h"
#include "batch/InfoReport.h"
#include "batch/ProgressLine.h"
#include "batch/SiteOptions.h"
#include "batch/StartUp.h"
#include "geodata/LayerProblems.h"
#include "language/VltLanguageManager.h"
#include "sites/SiteColumnSet.h"
#include "sites/SiteLayer.h"

#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>

namespace vlt::batch {

namespace {

const QString Examples =
    QStringLiteral("\nExamples:\n"
                   "  vltlayers site sites.xlsx -o sites.lay\n"
                   "  vltlayers site sites.csv --project city.gvw --target-srs 2154 -o sites.lay\n"
                   "  vltlayers site sites.csv --sector-radius 150 --transparency 40 \\\n"
                   "      --pylon-type 2 --sector-colors \"Pure colors\" -o sites.lay\n");

/// How the sites of a finished layer come out.
struct Outcome
{
    qint64 placed = 0;
    qint64 unplacedRows = 0;
};

void describe(QCommandLineParser &parser)
{
    parser.setApplicationDescription(
        QStringLiteral("Makes a site layer of a table, the same that the wizard makes."));
    parser.addPositionalArgument(QStringLiteral("TABLE"),
                                 QStringLiteral("Site table (.xls .xlsx .xml .csv)."),
                                 QStringLiteral("site TABLE -o OUT.lay"));
    parser.addOptions({
        {{QStringLiteral("o"), QStringLiteral("output")},
         QStringLiteral("Layer file to write."),
         QStringLiteral("OUT.lay")},
        {QStringLiteral("source-srs"),
         QStringLiteral("Coordinate system of the table (default: what the table declares, else "
                        "4326 for degrees, else the terrain's)."),
         QStringLiteral("SRS")},
        {QStringLiteral("target-srs"),
         QStringLiteral("Coordinate system of the project (default: the project's, else the "
                        "terrain's, else 4326 for degrees, else the table's)."),
         QStringLiteral("SRS")},
    });
    addSiteOptions(parser);
    addGlobalOptions(parser);
}

/// Where a file really is, so that two names of one file are seen to be one.
QString realPath(const QString &path)
{
    const QString canonical = QFileInfo(path).canonicalFilePath();
    return canonical.isEmpty() ? QFileInfo(path).absoluteFilePath() : canonical;
}

/// Name of the catalogue, below the pylons' folder, that has nothing to choose from.
QString emptyCatalogue(const sites::SiteCatalogues &catalogues)
{
    if (catalogues.pylonTypes.isEmpty())
        return QStringLiteral("/list.xml");
    return catalogues.colorSets.isEmpty() ? QStringLiteral("/colors/sectors.xml") : QString();
}

bool isInput(const QString &output, const QString &table, const sites::ProjectContext &project)
{
    for (const QString &input : {table, project.projectPath, project.terrainFile}) {
        if (!input.isEmpty() && realPath(input) == realPath(output))
            return true;
    }
    return false;
}

qint64 refusedRows(const geodata::LayerProblems &problems)
{
    QSet<int> rows;
    for (const Problem &problem : problems.listed) {
        if (problem.severity == Problem::Severity::Error && problem.row > 0)
            rows.insert(problem.row);
    }
    return rows.size();
}

/// Reads the sites through the very connection that the layer carries.
Result<Outcome> placeSites(const QString &query, const sites::ProjectContext &project, bool quiet)
{
    const QString connection = sites::resolvedConnection(query, project.directory());
    ProgressLine line(dico_label("MESS_CLI_READING", "Reading the sites"), !quiet);
    const Result<geodata::SiteCheck> check =
        geodata::readSiteCheck(connection, [&line](double share) {
            line.show(share);
            return true;
        });
    if (!check)
        return check.error();
    const geodata::LayerPlacement &placement = check.value().placement;
    const qint64 without = placement.features - placement.placed;
    return Outcome{placement.placed, qMax(without, refusedRows(check.value().problems))};
}

bool tell(const QString &output, const Outcome &outcome, const sites::SiteLayerInput &input,
          const GlobalOptions &options)
{
    if (!options.quiet) {
        if (outcome.unplacedRows > 0)
            printError(dico_label("MESS_CLI_UNPLACED", "rows that could not be placed") +
                       QStringLiteral(": %1").arg(outcome.unplacedRows));
        if (const auto nameless = sites::missingNameField(input.file))
            printError(problemText(*nameless));
        if (input.sourceSrs.isEmpty() && input.targetSrs.isEmpty())
            printError(dico_label("MESS_CLI_NO_SRS", "no coordinate system is known: give "
                                                     "--source-srs and --target-srs"));
    }
    if (!options.json)
        return true;
    const QJsonObject object{{QStringLiteral("layer"), QFileInfo(output).absoluteFilePath()},
                             {QStringLiteral("table"), input.file.filePath},
                             {QStringLiteral("sites"), outcome.placed},
                             {QStringLiteral("unplacedRows"), outcome.unplacedRows},
                             {QStringLiteral("sourceSrs"), input.sourceSrs},
                             {QStringLiteral("targetSrs"), input.targetSrs}};
    return printOut(QString::fromUtf8(QJsonDocument(object).toJson()));
}

ExitStatus makeLayer(const sites::SiteLayerInput &input, const QString &table,
                     const QString &output, const GlobalOptions &options)
{
    const Result<Outcome> outcome =
        placeSites(sites::siteQuery(input), input.project, options.quiet);
    if (!outcome)
        return refuse({outcome.error().key, outcome.error().text, table});
    if (outcome.value().placed == 0)
        return refuse(
            {QStringLiteral("MESS_CLI_NONE_PLACED"),
             QStringLiteral("none of its sites can be placed; \"vltlayers info\" tells why"),
             table});

    const Result<sites::SiteLayer> layer = sites::makeSiteLayer(input);
    if (!layer)
        return refuse(layer.error());
    if (layer.value().warning)
        printError(explain(*layer.value().warning));
    QString reason;
    const Result<Done> written =
        sites::writeSiteLayer(output, layer.value().text, platform::Access::Shared, &reason);
    if (!written)
        return refuse(written.error(), reason);
    if (!tell(output, outcome.value(), input, options))
        return refuse({QString(), QStringLiteral("the output cannot be written"), {}});
    return ExitStatus::Done;
}

ExitStatus runParsed(const QCommandLineParser &parser, const GlobalOptions &options,
                     const Surroundings &surroundings)
{
    const QString table = parser.positionalArguments().constFirst();
    const QString output = parser.value(QStringLiteral("output"));
    sites::SiteLayerInput input;
    input.catalogues = sites::loadSiteCatalogues(surroundings.installDir, surroundings.language);
    if (const QString missing = emptyCatalogue(input.catalogues); !missing.isEmpty())
        return refuse({QStringLiteral("MESS_MISSING_CONF_FILE"),
                       QStringLiteral("A configuration file is missing"),
                       surroundings.installDir + QLatin1Char('/') + sites::PylonFolder + missing});
    const auto representation = readSiteOptions(parser, input.catalogues);
    if (!representation)
        return refuseUsage(representation.error().text);
    if (isInput(output, table, surroundings.project))
        return refuse({QStringLiteral("MESS_CLI_OUTPUT_IS_INPUT"),
                       QStringLiteral("the output is one of the input files"), output});

    input.file = sites::readSiteFileInfo(QFileInfo(table).absoluteFilePath(), surroundings.project);
    if (input.file.error)
        return refuse({input.file.error->key, input.file.error->text, table},
                      input.file.errorDetail);
    input.representation = representation.value();
    input.project = surroundings.project;
    input.installDir = surroundings.installDir;
    input.language = surroundings.language;
    const auto system = [&parser](const QString &option, const QString &otherwise) {
        return sites::epsgText(parser.isSet(option) ? parser.value(option) : otherwise);
    };
    input.sourceSrs = system(QStringLiteral("source-srs"), input.file.systems.source);
    input.targetSrs = system(QStringLiteral("target-srs"), input.file.systems.target);
    return makeLayer(input, table, output, options);
}

} // namespace

ExitStatus runSite(const QStringList &arguments)
{
    QCommandLineParser parser;
    describe(parser);
    const Result<GlobalOptions> options = parseArguments(parser, arguments, 1);
    if (const auto answered = answerHelp(parser, options, Examples))
        return *answered;
    if (parser.value(QStringLiteral("output")).isEmpty())
        return refuseUsage(QStringLiteral("no output file given (-o OUT.lay)"));
    if (const auto numbers = readSiteNumbers(parser); !numbers)
        return refuseUsage(numbers.error().text);

    const Result<Surroundings> surroundings = startUp(options.value());
    if (!surroundings)
        return refuse(surroundings.error());
    return runParsed(parser, options.value(), surroundings.value());
}

} // namespace vlt::batch
