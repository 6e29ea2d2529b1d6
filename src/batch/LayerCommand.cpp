#include "batch/LayerCommand.h"

#include "batch/Console.h"
#include "batch/Help.h"
#include "batch/InfoReport.h"
#include "batch/OutputFiles.h"
#include "batch/SiteOptions.h"
#include "language/ReaderText.h"
#include "language/VltLanguageManager.h"
#include "platform/LayerFile.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>

namespace vlt::batch {

namespace {

const QStringList Delimiters = {QStringLiteral("comma"), QStringLiteral("semicolon"),
                                QStringLiteral("tab"), QStringLiteral("bar")};

qint64 refusedRows(const geodata::LayerProblems &problems)
{
    QSet<int> rows;
    for (const Problem &problem : problems.listed) {
        if (problem.severity == Problem::Severity::Error && problem.row > 0)
            rows.insert(problem.row);
    }
    return rows.size();
}

} // namespace

QList<QCommandLineOption> layerOptions()
{
    return QList<QCommandLineOption>{
               {{QStringLiteral("o"), QStringLiteral("output")},
                dico_label("MESS_OPT_OUTPUT", "Layer file to write; - for the standard output."),
                QStringLiteral("OUT.lay")},
               {QStringLiteral("source-srs"),
                dico_label("MESS_OPT_SOURCE_SRS",
                           "Coordinate system of the table (default: the one that the table "
                           "declares, else 4326 for degrees, else the terrain's, the one "
                           "that the table names, or the project's)."),
                QStringLiteral("SRS")},
               {QStringLiteral("target-srs"),
                dico_label("MESS_OPT_TARGET_SRS",
                           "Coordinate system of the project (default: the project's, else the "
                           "terrain's, else 4326 for degrees, else the table's)."),
                QStringLiteral("SRS")},
           } +
           readingOptions() + siteOptions();
}

QList<QCommandLineOption> readingOptions()
{
    return {
        {QStringLiteral("sheet"),
         dico_label("MESS_OPT_SHEET",
                    "Sheet of a workbook (default: the sheet with a header of sites or links)."),
         QStringLiteral("NAME")},
        {QStringLiteral("encoding"),
         dico_label("MESS_OPT_ENCODING", "Encoding of a text file, such as CP1250 (default: the "
                                         "encoding that fits its bytes)."),
         QStringLiteral("NAME")},
        {QStringLiteral("delimiter"),
         dico_label("MESS_OPT_DELIMITER", "Separator of the columns of a text file (default: the "
                                          "separator that fits its lines)."),
         Delimiters.join(QLatin1Char('|'))},
        {QStringLiteral("swap-axes"),
         dico_label("MESS_OPT_SWAP_AXES",
                    "Exchange the coordinates: the table has latitudes in the column of "
                    "longitudes, or northings in that of eastings.")},
    };
}

Result<tables::TableReading> readReading(const QCommandLineParser &parser)
{
    static const QRegularExpression name(QStringLiteral("\\A[A-Za-z0-9._:/-]+\\z"));
    const auto value = [&parser](const char *option) {
        return parser.value(QLatin1String(option));
    };
    const tables::TableReading reading{value("sheet"), value("encoding"),
                                       value("delimiter").toLower(),
                                       parser.isSet(QStringLiteral("swap-axes"))};
    if (parser.isSet(QStringLiteral("sheet")) && reading.sheet.isEmpty())
        return wrongUsage(
            dico_label("MESS_USE_NO_VALUE", "%1 needs a value").arg(QStringLiteral("--sheet")));
    if (parser.isSet(QStringLiteral("encoding")) && !name.match(reading.encoding).hasMatch())
        return wrongValue(QStringLiteral("encoding"),
                          dico_label("MESS_USE_ENCODING", "the name of an encoding"),
                          reading.encoding);
    if (parser.isSet(QStringLiteral("delimiter")) && !Delimiters.contains(reading.delimiter))
        return wrongValue(QStringLiteral("delimiter"), Delimiters.join(QLatin1Char('|')),
                          value("delimiter"));
    return reading;
}

std::variant<LayerRequest, ExitStatus> readLayerRequest(const QCommandLineParser &parser,
                                                        const Surroundings &surroundings,
                                                        const QStringList &inputs)
{
    LayerRequest request;
    request.table = parser.positionalArguments().constFirst();
    request.output = parser.value(QStringLiteral("output"));
    request.catalogues = sites::loadSiteCatalogues(surroundings.installDir, surroundings.language);
    if (const auto missing =
            sites::missingChoice(request.pylons, request.catalogues, surroundings.installDir))
        return refuse(*missing);
    const auto representation = readSiteOptions(parser, request.catalogues);
    if (!representation)
        return refuseUsage(representation.error());
    request.pylons = representation.value();
    const auto reading = readReading(parser);
    if (!reading)
        return refuseUsage(reading.error());
    request.reading = reading.value();
    if (!request.output.isEmpty() &&
        isOneOf(request.output,
                inputs + QStringList{request.table, surroundings.project.projectPath,
                                     surroundings.project.terrainFile}))
        return refuse(outputIsInput(request.output));
    return request;
}

geodata::SystemPair chosenSystems(const QCommandLineParser &parser,
                                  const geodata::SystemPair &otherwise)
{
    const auto system = [&parser](const QString &option, const QString &fromTable) {
        return parser.isSet(option) ? parser.value(option) : fromTable;
    };
    return {system(QStringLiteral("source-srs"), otherwise.source),
            system(QStringLiteral("target-srs"), otherwise.target)};
}

qint64 unplacedRows(const geodata::LayerPlacement &placement,
                    const geodata::LayerProblems &problems)
{
    return qMax(placement.features - placement.placed, refusedRows(problems));
}

std::optional<ExitStatus> writeLayer(const QString &path, const Result<tables::TableLayer> &layer)
{
    if (!layer)
        return refuse(layer.error());
    if (layer.value().warning)
        printError(explain(*layer.value().warning));
    if (isStandardOutput(path)) {
        const ExitStatus printed = printResult(layer.value().text);
        return printed == ExitStatus::Done ? std::nullopt : std::optional(printed);
    }
    const Result<Done> written =
        platform::writeLayerFile(path, layer.value().text, platform::Access::Shared);
    if (!written)
        return refuse(written.error());
    return std::nullopt;
}

void warnOfSystems(const LayerOutcome &outcome)
{
    for (const Problem &problem : outcome.systemProblems)
        printError(problemText(problem));
    for (const geodata::PositionFinding &finding : outcome.findings)
        printError(oneLine(language::readerText(finding.text)));
}

void warnOfLayer(const LayerOutcome &outcome, const geodata::SystemPair &systems)
{
    if (outcome.unplacedRows > 0)
        printError(dico_label("MESS_CLI_UNPLACED", "rows that could not be placed: %1")
                       .arg(outcome.unplacedRows));
    warnOfSystems(outcome);
    if (systems.source.isEmpty() && systems.target.isEmpty())
        printError(dico_label("MESS_CLI_NO_SRS", "no coordinate system is known: give "
                                                 "--source-srs and --target-srs"));
}

QJsonObject layerJson(const LayerRequest &request, const LayerOutcome &outcome,
                      const geodata::SystemPair &systems)
{
    return {{QStringLiteral("layer"), request.output.isEmpty()
                                          ? QJsonValue(QJsonValue::Null)
                                          : QFileInfo(request.output).absoluteFilePath()},
            {QStringLiteral("table"), QFileInfo(request.table).absoluteFilePath()},
            {QStringLiteral("unplacedRows"), outcome.unplacedRows},
            {QStringLiteral("sourceSrs"), systems.source},
            {QStringLiteral("targetSrs"), systems.target}};
}

ExitStatus printResult(const QString &text)
{
    if (!printOut(text))
        return refuse({QStringLiteral("MESS_CLI_OUTPUT_FAILED"),
                       QStringLiteral("the output cannot be written"),
                       {}});
    return ExitStatus::Done;
}

} // namespace vlt::batch
