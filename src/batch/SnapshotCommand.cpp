#include "batch/SnapshotCommand.h"

#include "batch/Console.h"
#include "batch/Help.h"
#include "batch/OutputFiles.h"
#include "batch/ProgressLine.h"
#include "batch/StartUp.h"
#include "buildings/CountsText.h"
#include "contract/SceneNames.h"
#include "language/ReaderText.h"
#include "language/VltLanguageManager.h"
#include "platform/AtomicFile.h"
#include "snapshot/CityView.h"
#include "snapshot/DrawnBuildings.h"
#include "snapshot/JoinedScenes.h"
#include "snapshot/SceneEarth.h"
#include "snapshot/SceneGround.h"
#include "snapshot/SceneNotices.h"
#include "snapshot/SceneSource.h"
#include "snapshot/Snapshot.h"

#include <QBuffer>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include <optional>

namespace vlt::batch {

namespace {

using snapshot::SceneView;

struct NamedView
{
    const char *name;
    SceneView view;
};
constexpr NamedView Views[] = {{"all", SceneView::All},
                               {"north", SceneView::North},
                               {"top", SceneView::Top},
                               {"symbolic", SceneView::Symbolic},
                               {"precise", SceneView::Precise}};
const QString ViewNames = QStringLiteral("all|north|top|symbolic|precise|site:ID|link:ID");
constexpr int MostLayers = 8;
const QString LabelValues = QStringLiteral("none|some|all");

/// The values of the command line.
struct Request
{
    QStringList layers; ///< at least one
    QString output;
    QString viewName;
    snapshot::PictureRequest picture;
    std::optional<QString> terrain; ///< empty: none; nothing: that of the layer or the project
    QString imagery;                ///< empty: none
    bool withGround = true;
    bool withLegend = false;
    QString labels; ///< a value of contract/SceneNames.h
};

CommandSyntax syntax()
{
    CommandSyntax syntax;
    syntax.name = QStringLiteral("snapshot");
    syntax.usage = QStringLiteral("LAYER [LAYER...] -o PICTURE.png");
    syntax.summary = dico_label("MESS_HELP_SNAPSHOT_SUMMARY", "make a picture of a layer");
    syntax.description = dico_label(
        "MESS_HELP_SNAPSHOT", "Makes a picture (PNG) of a layer or of another scene file. It needs "
                              "an X server; xvfb-run provides one on a computer without a screen.");
    syntax.inputs = {
        1, MostLayers, QStringLiteral("LAYER"),
        dico_label("MESS_HELP_SNAPSHOT_LAYER",
                   "Layer (.lay), building document (.texb), any scene file that the scene library "
                   "reads, or a parametric object inline://parametric/query?... Several layers "
                   "are shown together at their places."),
        dico_label("MESS_USE_NO_LAYER", "no layer given")};
    syntax.options = {
        {{QStringLiteral("o"), QStringLiteral("output")},
         dico_label("MESS_OPT_PICTURE", "Picture to write, *.png; - for the standard output."),
         QStringLiteral("PICTURE.png")},
        {QStringLiteral("size"),
         dico_label("MESS_OPT_SIZE", "Width and height in pixels, %1 to %2 each (default "
                                     "1280x960).")
             .arg(snapshot::MinSidePx)
             .arg(snapshot::MaxSidePx),
         QStringLiteral("WxH"), QStringLiteral("1280x960")},
        {QStringLiteral("view"),
         dico_label("MESS_OPT_VIEW",
                    "all: everything, from the south-west (default); north: the same towards true "
                    "north; top: from above, true north up; symbolic: the sectors of the site in "
                    "the middle; precise: its mast and antennas; site:ID or link:ID: the site or "
                    "the link of this name, or #N for the one in row N."),
         ViewNames, QStringLiteral("all")},
        {QStringLiteral("terrain"),
         dico_label("MESS_OPT_SHOW_TERRAIN",
                    "Terrain for the ground (default: that of the layer, else of the project). "
                    "Without any, the ground is level and has a metric grid."),
         QStringLiteral("FILE")},
        {QStringLiteral("title"),
         dico_label("MESS_OPT_PICTURE_TITLE", "Title on the picture, in its upper left corner."),
         QStringLiteral("TEXT")},
        {QStringLiteral("north"),
         dico_label("MESS_OPT_PICTURE_NORTH",
                    "Draw an arrow to true north, and a scale bar that is valid in the middle of "
                    "the picture.")},
        {QStringLiteral("imagery"),
         dico_label("MESS_OPT_IMAGERY",
                    "Image to lay over the ground: any local raster with a georeference, in "
                    "colors, gray or with a palette."),
         QStringLiteral("FILE")},
        {QStringLiteral("legend"),
         dico_label("MESS_OPT_PICTURE_LEGEND",
                    "Draw the legend: colors of sectors, of clearances, of values of buildings.")},
        {QStringLiteral("no-ground"),
         dico_label("MESS_OPT_NO_GROUND", "Show no ground below the layer.")},
        {QStringLiteral("transparent"),
         dico_label("MESS_OPT_TRANSPARENT",
                    "Leave the background transparent: no sky and no level ground. A terrain stays "
                    "unless --no-ground is given.")},
        {QStringLiteral("labels"),
         dico_label("MESS_OPT_LABELS",
                    "Names of sites and links: as many as suit the picture (some, the default), as "
                    "many as have room (all), or none."),
         LabelValues, QLatin1String(contract::names::Some)},
    };
    syntax.examples =
        QStringLiteral("  vltlayers snapshot sites.lay -o sites.png\n"
                       "  vltlayers snapshot sites.lay --terrain dem.tif -o sites.png\n"
                       "  vltlayers snapshot sites.lay --project city.gvw --view symbolic \\\n"
                       "      --size 1920x1080 -o sectors.png\n"
                       "  vltlayers snapshot sites.lay links.lay --project city.gvw \\\n"
                       "      --north --legend -o network.png\n"
                       "  vltlayers snapshot links.lay --project city.gvw -o links.png\n"
                       "  xvfb-run -a vltlayers snapshot sites.lay --view precise -o mast.png\n");
    return syntax;
}

std::optional<QSize> sizeFrom(const QString &text)
{
    static const QRegularExpression form(QStringLiteral("^([0-9]{1,5})x([0-9]{1,5})$"));
    const QRegularExpressionMatch match = form.match(text);
    const QSize size(match.captured(1).toInt(), match.captured(2).toInt());
    const auto fits = [](int side) {
        return side >= snapshot::MinSidePx && side <= snapshot::MaxSidePx;
    };
    if (!match.hasMatch() || !fits(size.width()) || !fits(size.height()))
        return std::nullopt;
    return size;
}

std::optional<SceneView> viewFrom(const QString &name)
{
    for (const NamedView &named : Views) {
        if (name == QLatin1String(named.name))
            return named.view;
    }
    return std::nullopt;
}

Result<Request> readRequest(const QCommandLineParser &parser)
{
    Request request;
    request.layers = parser.positionalArguments();
    request.output = parser.value(QStringLiteral("output"));
    if (request.output.isEmpty())
        return wrongUsage(
            dico_label("MESS_USE_NO_PICTURE", "no output file given (-o PICTURE.png)"));
    if (const auto error = checkStandardOutput(parser, {QStringLiteral("json")}))
        return *error;
    if (!isStandardOutput(request.output) &&
        !request.output.endsWith(QLatin1String(".png"), Qt::CaseInsensitive))
        return wrongUsage(
            dico_label("MESS_USE_PNG", "the picture is in PNG format: its name must end in .png"));
    const std::optional<QSize> size = sizeFrom(parser.value(QStringLiteral("size")));
    if (!size)
        return wrongValue(QStringLiteral("size"),
                          dico_label("MESS_USE_SIZE", "WxH, each of %1 to %2 pixels")
                              .arg(snapshot::MinSidePx)
                              .arg(snapshot::MaxSidePx),
                          parser.value(QStringLiteral("size")));
    request.picture.size = *size;
    request.viewName = parser.value(QStringLiteral("view"));
    const std::optional<SceneView> view = viewFrom(request.viewName);
    request.picture.object = snapshot::ShownObject::from(request.viewName);
    if (!view && !request.picture.object)
        return wrongValue(QStringLiteral("view"), ViewNames, request.viewName);
    request.picture.view = view.value_or(SceneView::All);
    request.picture.aids.title = parser.value(QStringLiteral("title"));
    request.withLegend = parser.isSet(QStringLiteral("legend"));
    request.picture.aids.withNorth = parser.isSet(QStringLiteral("north"));
    if (parser.isSet(QStringLiteral("terrain")))
        request.terrain = parser.value(QStringLiteral("terrain"));
    request.imagery = parser.value(QStringLiteral("imagery"));
    request.labels = parser.value(QStringLiteral("labels"));
    if (!LabelValues.split(QLatin1Char('|')).contains(request.labels))
        return wrongValue(QStringLiteral("labels"), LabelValues, request.labels);
    request.picture.isTransparent = parser.isSet(QStringLiteral("transparent"));
    request.withGround = !parser.isSet(QStringLiteral("no-ground"));
    return request;
}

/// A notice if buildings are too far from the eye to be in a picture.
QStringList drawnNotice(osg::Node &scene, const osg::Vec3d &eye)
{
    const std::optional<qint64> all = snapshot::buildingCount(scene);
    const QString text =
        all ? buildings::drawnText(snapshot::drawnBuildings(scene, eye), *all) : QString();
    return text.isEmpty() ? QStringList() : QStringList(text);
}

void printNotices(const QStringList &notices, const GlobalOptions &options)
{
    for (const QString &notice : notices) {
        if (!options.quiet)
            printError(oneLine(language::readerText(notice)));
    }
}

/// The scene's description, which has lines "key=value".
QJsonObject descriptionOf(const osg::Node &scene)
{
    QJsonObject object;
    for (const std::string &line : scene.getDescriptions()) {
        const QString text = QString::fromStdString(line);
        if (const qsizetype sign = text.indexOf(QLatin1Char('=')); sign > 0)
            object.insert(text.left(sign), text.mid(sign + 1));
    }
    return object;
}

bool printReport(const Request &request, const osg::Node &scene)
{
    QStringList layers;
    for (const QString &layer : request.layers)
        layers << (snapshot::isParametricName(layer) ? layer : QFileInfo(layer).absoluteFilePath());
    const QJsonObject object{
        {QStringLiteral("layer"), layers.first()},
        {QStringLiteral("layers"), QJsonArray::fromStringList(layers)},
        {QStringLiteral("picture"), QFileInfo(request.output).absoluteFilePath()},
        {QStringLiteral("width"), request.picture.size.width()},
        {QStringLiteral("height"), request.picture.size.height()},
        {QStringLiteral("view"), request.viewName},
        {QStringLiteral("scene"), descriptionOf(scene)}};
    return printOut(QString::fromUtf8(QJsonDocument(object).toJson()));
}

/// Refuses the layer; an error without a file gets the layer as its file.
ExitStatus refuseLayer(Error error, const Request &request)
{
    if (error.path.isEmpty())
        error.path = request.layers.first();
    return refuse(error);
}

Result<snapshot::Scene> readScene(const Request &request, const GlobalOptions &options,
                                  const QString &terrain)
{
    ProgressLine line(dico_label("MESS_CLI_READING_SCENE", "Reading the scene"), !options.quiet);
    QList<snapshot::Scene> scenes;
    for (const QString &layer : request.layers) {
        // The progress line never stops the work, so there is a value.
        const Result<snapshot::Scene> scene =
            *snapshot::readScene(layer, options.projectPath, terrain, line.progress());
        if (!scene)
            return scene.error().path.isEmpty() ? scene.error().withPath(layer) : scene.error();
        // several layers may name the same sites
        snapshot::showNames(*scene.value(), scenes.isEmpty()
                                                ? request.labels
                                                : QLatin1String(contract::names::None));
        scenes << scene.value();
    }
    if (const snapshot::Scene all = snapshot::joined(scenes))
        return all;
    return Error{QStringLiteral("MESS_SNAP_NOT_JOINED"),
                 QStringLiteral("one of the scenes does not state where on the earth it lies: they "
                                "cannot be shown together"),
                 {}};
}

/// Writes the picture; returns an exit status only after a failure.
std::optional<ExitStatus> writePicture(const QString &output, const QByteArray &bytes)
{
    QString reason;
    if (!isStandardOutput(output)) {
        const Result<Done> written = platform::writeWhole(output, bytes, platform::Access::Shared);
        if (written)
            return std::nullopt;
        reason = written.error().detail;
    } else if (printBytes(bytes)) {
        return std::nullopt;
    }
    return refuse({QStringLiteral("MESS_SNAP_NOT_WRITTEN"),
                   QStringLiteral("the picture cannot be written"), output, reason});
}

/// Whether the file is a table: only layers of tables can be shown, not the tables.
bool isTable(const QString &layer)
{
    static const QStringList suffixes = {QStringLiteral("csv"), QStringLiteral("xls"),
                                         QStringLiteral("xlsx"), QStringLiteral("xml")};
    const QFileInfo file(layer);
    return file.isFile() && suffixes.contains(file.suffix(), Qt::CaseInsensitive);
}

ExitStatus makePicture(const Request &request, const GlobalOptions &options,
                       const QString &projectTerrain)
{
    snapshot::SceneNotices notices;
    const QString terrain = request.terrain.value_or(projectTerrain);
    const Result<snapshot::Scene> scene = readScene(request, options, terrain);
    if (!scene) {
        notices.take(); // they repeat the error's reason
        return refuseLayer(scene.error(), request);
    }
    printNotices(notices.take(), options);
    snapshot::PictureRequest wanted = request.picture;
    if (request.withLegend)
        wanted.aids.legend = snapshot::readingOf(scene.value()).legend;
    std::optional<snapshot::SceneGround> ground;
    if (request.withGround)
        ground.emplace(*scene.value(), terrain, request.terrain.has_value());
    if (ground && request.picture.isTransparent)
        ground->leaveOutPlane();
    if (ground && !request.imagery.isEmpty())
        ground->drape(request.imagery);
    const Result<snapshot::DrawnPicture> picture =
        snapshot::renderSnapshot(*scene.value(), wanted, ground ? &*ground : nullptr);
    if (!picture)
        return refuseLayer(picture.error(), request);
    printNotices(drawnNotice(*scene.value(), picture.value().eye), options);
    if (ground)
        printNotices(ground->problems(), options);

    QByteArray bytes;
    QBuffer buffer(&bytes);
    if (!buffer.open(QIODevice::WriteOnly) || !picture.value().image.save(&buffer, "PNG"))
        return refuse({QStringLiteral("MESS_SNAP_NOT_WRITTEN"),
                       QStringLiteral("the picture cannot be written"), request.output});
    if (const auto failed = writePicture(request.output, bytes))
        return *failed;
    if (options.json && !printReport(request, *scene.value()))
        return refuse({QStringLiteral("MESS_CLI_OUTPUT_FAILED"),
                       QStringLiteral("the output cannot be written"),
                       {}});
    return ExitStatus::Done;
}

ExitStatus run(const QCommandLineParser &parser, const GlobalOptions &options)
{
    const Result<Request> request = readRequest(parser);
    if (!request)
        return refuseUsage(request.error());

    const Result<Surroundings> surroundings = startUp(options);
    if (!surroundings)
        return refuse(surroundings.error());
    const QString output = request.value().output;
    const QStringList &layers = request.value().layers;
    if (isOneOf(output, layers + QStringList{options.projectPath, request.value().imagery}))
        return refuse(outputIsInput(output));
    for (const QString &layer : layers) {
        if (isTable(layer))
            return refuse(
                {QStringLiteral("MESS_CLI_TABLE_NO_SCENE"),
                 QStringLiteral("this is a table: make a layer of it with \"vltlayers site\" "
                                "or \"vltlayers link\" first"),
                 layer});
    }
    snapshot::addInstalledReaders(surroundings.value().installDir);
    return makePicture(request.value(), options, surroundings.value().project.terrainFile);
}

} // namespace

Command snapshotCommand()
{
    return {syntax, run};
}

} // namespace vlt::batch
