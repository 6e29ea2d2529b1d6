#include "batch/LayerCommand.h"

#include "batch/Console.h"
#include "batch/Help.h"
#include "batch/InfoReport.h"
#include "batch/MappingOptions.h"
#include "batch/OutputFiles.h"
#include "batch/SiteOptions.h"
#include "contract/TextPatterns.h"
#include "language/ReaderText.h"
#include "language/VltLanguageManager.h"
#include "platform/LayerFile.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QRegularExpression>
#include <QSet>

namespace vlt::batch {

namespace {

const QStringList Delimiters = {QStringLiteral("comma"), QStringLiteral("semicolon"),
                                QStringLiteral("tab"), QStringLiteral("bar")};

/// The name of the option for the file that completes a table.
QString secondFileName(contract::TableKind kind)
{
    return kind == contract::TableKind::Links ? QStringLiteral("sites") : QStringLiteral("sectors");
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

} // namespace

QList<QCommandLineOption> layerOptions(contract::TableKind kind)
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
           readingOptions() + QList{secondFileOption(kind)} + siteOptions();
}

QCommandLineOption secondFileOption(contract::TableKind kind)
{
    const QString file = QStringLiteral("FILE");
    return kind == contract::TableKind::Links
               ? QCommandLineOption(
                     secondFileName(kind),
                     dico_label("MESS_OPT_SITES",
                                "Table of the sites at the ends of links that are only named "
                                "(default: another sheet of the workbook)."),
                     file)
               : QCommandLineOption(
                     secondFileName(kind),
                     dico_label("MESS_OPT_SECTORS",
                                "Table of the transmitters, each with the id of its site "
                                "(default: another sheet of the workbook)."),
                     file);
}

QList<QCommandLineOption> readingOptions()
{
    return {
        {QStringLiteral("sheet"),
         dico_label("MESS_OPT_SHEET",
                    "Sheet of a workbook (default: the sheet that holds sites or links)."),
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
        mappingOption(),
    };
}

namespace {

/// Reads the path of the second file; nothing if it is not given.
Result<QString> readSecondFile(const QCommandLineParser &parser, const QString &option,
                               const QString &table)
{
    if (!parser.isSet(option))
        return QString();
    const QString path = parser.value(option);
    if (path.isEmpty())
        return wrongUsage(
            dico_label("MESS_USE_NO_VALUE", "%1 needs a value").arg(QStringLiteral("--") + option));
    return QFileInfo(table).absoluteDir().relativeFilePath(QFileInfo(path).absoluteFilePath());
}

} // namespace

Result<tables::TableReading> readReading(const QCommandLineParser &parser, contract::TableKind kind,
                                         const QString &table)
{
    static const QRegularExpression name(QStringLiteral("\\A[A-Za-z0-9._:/-]+\\z"));
    const auto value = [&parser](const char *option) {
        return parser.value(QLatin1String(option));
    };
    tables::TableReading reading{value("sheet"), value("encoding"), value("delimiter").toLower(),
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
    const Result<QString> second = readSecondFile(parser, secondFileName(kind), table);
    if (!second)
        return second.error();
    (kind == contract::TableKind::Links ? reading.endSites : reading.sectors) = second.value();
    if (parser.isSet(QStringLiteral("mapping")) && value("mapping").isEmpty())
        return wrongUsage(
            dico_label("MESS_USE_NO_VALUE", "%1 needs a value").arg(QStringLiteral("--mapping")));
    reading.columns = readMappingOption(parser, table);
    return reading;
}

std::variant<LayerRequest, ExitStatus> readLayerRequest(const QCommandLineParser &parser,
                                                        contract::TableKind kind,
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
    const auto reading = readReading(parser, kind, request.table);
    if (!reading)
        return refuseUsage(reading.error());
    request.reading = reading.value();
    if (const auto error = checkMapping(parser))
        return refuse(*error);
    if (!request.output.isEmpty() &&
        isOneOf(request.output,
                inputs + QStringList{request.table, parser.value(secondFileName(kind)),
                                     parser.value(QStringLiteral("mapping")),
                                     surroundings.project.projectPath,
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

QList<Problem> mappingProblems(const geodata::LayerProblems &problems)
{
    QList<Problem> found;
    for (const Problem &problem : problems.listed) {
        const std::string text = problem.row > 0 ? std::string() : problem.text.toStdString();
        const auto known = contract::recognised(text);
        if (known &&
            std::string_view(known->text->key).find("_TAB_MAPPING_") != std::string_view::npos)
            found << problem;
    }
    return found;
}

namespace {

/// The contradictions between a table, what is stated about it and its systems, one line each.
QStringList warningsOf(const LayerOutcome &outcome)
{
    QStringList warnings;
    for (const Problem &problem : outcome.mappingProblems + outcome.systemProblems)
        warnings << problemText(problem);
    for (const geodata::PositionFinding &finding : outcome.findings)
        warnings << oneLine(language::readerText(finding.text));
    return warnings;
}

} // namespace

void warnOfSystems(const LayerOutcome &outcome)
{
    for (const QString &warning : warningsOf(outcome))
        printError(warning);
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
    QJsonObject object{{QStringLiteral("layer"),
                        request.output.isEmpty() ? QJsonValue(QJsonValue::Null)
                                                 : QFileInfo(request.output).absoluteFilePath()},
                       {QStringLiteral("table"), QFileInfo(request.table).absoluteFilePath()},
                       {QStringLiteral("unplacedRows"), outcome.unplacedRows},
                       {QStringLiteral("sourceSrs"), systems.source},
                       {QStringLiteral("targetSrs"), systems.target}};
    if (const QStringList warnings = warningsOf(outcome); !warnings.isEmpty())
        object.insert(QStringLiteral("warnings"), QJsonArray::fromStringList(warnings));
    return object;
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
