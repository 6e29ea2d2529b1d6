#include "batch/LinkCommand.h"

#include "batch/Console.h"
#include "batch/Help.h"
#include "batch/LayerCommand.h"
#include "batch/LinkNamed.h"
#include "batch/LinkOptions.h"
#include "batch/LinkReport.h"
#include "batch/ProgressLine.h"
#include "batch/SiteOptions.h"
#include "language/VltLanguageManager.h"
#include "links/LinkLayer.h"
#include "links/ProfilePicture.h"
#include "platform/AtomicFile.h"
#include "tables/ResolvedConnection.h"
#include "tables/SystemObstacle.h"

#include <QFileInfo>
#include <QJsonDocument>

namespace vlt::batch {

namespace {

/// Values of the options that only this command has.
struct LinkRequest
{
    links::LinkRepresentation representation;
    std::optional<QString> terrain; ///< as given; an empty text for no terrain
    bool report = false;
    QString profile; ///< link whose profile is drawn; empty: none
};

CommandSyntax syntax()
{
    CommandSyntax syntax;
    syntax.name = QStringLiteral("link");
    syntax.usage = QStringLiteral("TABLE [-o OUT.lay] [--report] [--profile LINK]");
    syntax.summary =
        dico_label("MESS_HELP_LINK_SUMMARY", "make a layer of links, check their clearance");
    syntax.description = dico_label(
        "MESS_HELP_LINK", "Makes a layer from a table of microwave links, like the wizard, and "
                          "checks the clearance of each link over the terrain.");
    syntax.inputs = {1, 1, QStringLiteral("TABLE"),
                     dico_label("MESS_HELP_LINK_TABLE", "Link table (.xls .xlsx .xml .csv)."),
                     dico_label("MESS_USE_NO_TABLE", "no table given")};
    syntax.options =
        layerOptions(contract::TableKind::Links) + linkOptions() +
        QList<QCommandLineOption>{
            {QStringLiteral("terrain"),
             dico_label("MESS_OPT_TERRAIN",
                        "Terrain file under the links (default: the project's; empty: none)."),
             QStringLiteral("FILE")},
            {QStringLiteral("report"),
             dico_label("MESS_OPT_REPORT", "Print length, frequency, clearance and worst point of "
                                           "each link. The layer file is then optional.")},
            {QStringLiteral("profile"),
             dico_label("MESS_OPT_PROFILE",
                        "Draw the path of a link, given by its name or as #ROW, into the file of "
                        "-o (.svg or .png), instead of a layer."),
             QStringLiteral("LINK")},
        };
    syntax.examples =
        QStringLiteral("  vltlayers link links.xlsx -o links.lay\n"
                       "  vltlayers link links.csv --sites sites.csv -o links.lay\n"
                       "  vltlayers link links.csv --project city.gvw --color-by-clearance \\\n"
                       "      --link-style line --link-width 3 -o links.lay\n"
                       "  vltlayers link links.csv --terrain hills.tif --k-factor 1 --report\n"
                       "  vltlayers link links.csv --terrain hills.tif --report --json\n"
                       "  vltlayers link links.csv --terrain hills.tif --profile North -o p.svg\n");
    syntax.lists = catalogueLists;
    return syntax;
}

Result<LinkRequest> readLinkRequest(const QCommandLineParser &parser)
{
    LinkRequest request;
    const Result<links::LinkRepresentation> representation = readLinkOptions(parser);
    if (!representation)
        return representation.error();
    request.representation = representation.value();
    const QString terrain = QStringLiteral("terrain");
    if (parser.isSet(terrain))
        request.terrain = parser.value(terrain);
    request.report = parser.isSet(QStringLiteral("report"));
    request.profile = parser.value(QStringLiteral("profile"));
    if (parser.isSet(QStringLiteral("profile"))) {
        if (request.profile.isEmpty())
            return wrongValue(QStringLiteral("profile"), QStringLiteral("LINK"), {});
        if (!links::isProfileName(parser.value(QStringLiteral("output"))))
            return wrongUsage(
                dico_label("MESS_USE_PROFILE_OUTPUT",
                           "the profile is a picture: give -o PROFILE.svg or PROFILE.png"));
        return request;
    }
    if (!request.report && parser.value(QStringLiteral("output")).isEmpty())
        return wrongUsage(dico_label("MESS_USE_NO_OUTPUT_NOR_REPORT",
                                     "no output file given (-o OUT.lay), and no --report"));
    return request;
}

geodata::LinkCheckInput checkInput(const links::LinkLayerInput &input, const LinkRequest &wanted)
{
    geodata::LinkCheckInput check;
    check.rule = {wanted.representation.fresnelSharePercent / 100.0, wanted.representation.kFactor};
    if (wanted.report || !wanted.profile.isEmpty())
        check.terrainFile = input.project.terrainFile;
    return check;
}

/// Reads the links through the same connection as the layer; computes their clearance for a report
/// or a profile.
Result<geodata::LinkCheck> readLinks(const links::LinkLayerInput &input, const LinkRequest &wanted,
                                     bool quiet)
{
    ProgressLine line(dico_label("MESS_CLI_READING_LINKS", "Reading the links"), !quiet);
    const QString connection = tables::withTerrain(
        tables::resolvedConnection(links::linkQuery(input), input.project.directory()),
        input.file.terrainArea);
    // The progress line never stops the work, so there is a value.
    return *geodata::readLinkCheck(connection, checkInput(input, wanted), line.progress(),
                                   {input.sourceSrs, input.targetSrs});
}

void warnOfTerrain(const geodata::LinkCheck &check, const QString &terrain)
{
    if (terrain.isEmpty())
        printError(dico_label("MESS_CLI_NO_TERRAIN", "no terrain is known, so the clearance of the "
                                                     "links cannot be computed: give --terrain"));
    else if (check.terrainProblem)
        printError(explain(*check.terrainProblem));
}

QString resultText(const geodata::LinkCheck &check, const LinkRequest &wanted, QJsonObject layer,
                   bool json)
{
    if (!json)
        return wanted.report ? linkReportText(check) : QString();
    layer.insert(QStringLiteral("placedLinks"), check.placement.placed);
    if (wanted.report) {
        const QJsonObject report = linkReportJson(check);
        for (auto entry = report.begin(); entry != report.end(); ++entry)
            layer.insert(entry.key(), entry.value());
    }
    return QString::fromUtf8(QJsonDocument(layer).toJson());
}

/// Draws the profile of the wanted link; returns an exit status only after a failure.
std::optional<ExitStatus> writeProfile(const geodata::LinkCheck &check,
                                       const links::LinkLayerInput &input,
                                       const LayerRequest &request, const LinkRequest &wanted)
{
    const Result<geodata::LinkReport> link = linkNamed(wanted.profile, check.links);
    if (!link)
        return refuse(link.error().withPath(request.table));
    const auto profile =
        geodata::profileOf(link.value(), check.endSystem, checkInput(input, wanted));
    if (!profile)
        return refuse(
            Error::asIs(dico_label("MESS_CLI_LINK_NO_LENGTH",
                                   "the link '%1' has no profile: an end has no position, or both "
                                   "have the same")
                            .arg(wanted.profile),
                        request.table));
    const Result<Done> written = platform::writeWhole(
        request.output, links::profilePicture(*profile, request.output), platform::Access::Shared);
    return written ? std::nullopt
                   : std::optional(refuse({QStringLiteral("MESS_SNAP_NOT_WRITTEN"),
                                           QStringLiteral("the picture cannot be written"),
                                           request.output, written.error().detail}));
}

ExitStatus makeLayer(const links::LinkLayerInput &input, const LayerRequest &request,
                     const LinkRequest &wanted, const GlobalOptions &options)
{
    const Result<geodata::LinkCheck> check = readLinks(input, wanted, options.quiet);
    if (!check)
        return refuse(check.error().withPath(request.table));
    const geodata::SystemPair systems{input.sourceSrs, input.targetSrs};
    const LayerOutcome outcome = layerOutcome(check.value(), input.file, systems);
    if (const auto unknown = tables::undeclaredObstacle(input.file, systems)) {
        warnOfSystems(outcome);
        return refuse(unknown->withPath(request.table));
    }
    if (outcome.placed == 0) {
        warnOfSystems(outcome);
        return refuse({QStringLiteral("MESS_CLI_NO_LINK_PLACED"),
                       QStringLiteral(
                           "none of its links has a position; \"vltlayers info --link\" shows why"),
                       request.table});
    }
    if (!wanted.profile.isEmpty()) {
        if (const auto failed = writeProfile(check.value(), input, request, wanted))
            return *failed;
    } else if (!request.output.isEmpty()) {
        if (const auto failed = writeLayer(request.output, links::makeLinkLayer(input)))
            return *failed;
    }

    if (!options.quiet) {
        warnOfLayer(outcome, systems);
        if (wanted.report || !wanted.profile.isEmpty())
            warnOfTerrain(check.value(), input.project.terrainFile);
    }
    return printResult(
        resultText(check.value(), wanted, layerJson(request, outcome, systems), options.json));
}

ExitStatus runParsed(const QCommandLineParser &parser, const LinkRequest &wanted,
                     const GlobalOptions &options, const Surroundings &surroundings)
{
    project::ProjectContext project = surroundings.project;
    if (wanted.terrain) {
        project.terrainFile =
            wanted.terrain->isEmpty() ? QString() : QFileInfo(*wanted.terrain).absoluteFilePath();
        const auto problem = project.terrainFile.isEmpty()
                                 ? std::nullopt
                                 : geodata::terrainProblem(project.terrainFile);
        if (problem)
            return refuse(problem->withPath(*wanted.terrain));
    }
    const auto read =
        readLayerRequest(parser, contract::TableKind::Links, surroundings, {project.terrainFile});
    if (const ExitStatus *stopped = std::get_if<ExitStatus>(&read))
        return *stopped;
    const auto &request = std::get<LayerRequest>(read);

    links::LinkLayerInput input;
    const auto file = links::readLinkFileInfoAs(QFileInfo(request.table).absoluteFilePath(),
                                                project, request.reading);
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
    input.pylons = request.pylons;
    input.links = wanted.representation;
    input.catalogues = request.catalogues;
    input.project = project;
    input.installDir = surroundings.installDir;
    input.language = surroundings.language;
    return makeLayer(input, request, wanted, options);
}

ExitStatus run(const QCommandLineParser &parser, const GlobalOptions &options)
{
    const Result<LinkRequest> wanted = readLinkRequest(parser);
    if (!wanted)
        return refuseUsage(wanted.error());
    if (const auto error =
            checkStandardOutput(parser, {QStringLiteral("json"), QStringLiteral("report")}))
        return refuseUsage(*error);
    if (const auto numbers = readSiteNumbers(parser); !numbers)
        return refuseUsage(numbers.error());

    const Result<Surroundings> surroundings = startUp(options);
    if (!surroundings)
        return refuse(surroundings.error());
    return runParsed(parser, wanted.value(), options, surroundings.value());
}

} // namespace

Command linkCommand()
{
    return {syntax, run};
}

} // namespace vlt::batch
