#include "batch/BuildingsInputs.h"

#include "batch/BuildingsTextures.h"
#include "buildings/ColoringLegend.h"
#include "buildings/HeightGuess.h"
#include "buildings/SourceSummary.h"
#include "colormaps/ColorMapList.h"
#include "coverage/CoverageRaster.h"
#include "geodata/ErrorCollector.h"
#include "geodata/PolygonSource.h"
#include "geodata/RasterSource.h"
#include "language/VltLanguageManager.h"
#include "text/Numbers.h"
#include "wizard/project/ProjectReaders.h"

#include <QFile>
#include <QFileInfo>

#include <memory>

namespace vlt::batch {

namespace {

using buildings::BuildingsSource;
using buildings::RasterColoring;

QString absolute(const QString &path)
{
    return QFileInfo(path).absoluteFilePath();
}

/// An error whose text is that of the language in use already.
Error told(const QString &text, const QString &path)
{
    return {QString(), text, path};
}

/// A file's error with the library's reason behind it.
Error withReason(const char *key, const char *text, const Error &error, const QString &path)
{
    const QString message = dico_label(key, text);
    return told(error.text.isEmpty() || error.text == QLatin1String(text)
                    ? message
                    : message + QStringLiteral(" (") + error.text + QLatin1Char(')'),
                path);
}

/// Position of a name, whatever its case where it does not stand there as it is; -1 for none.
qsizetype indexOfName(const QStringList &names, const QString &name)
{
    const qsizetype index = names.indexOf(name);
    if (index >= 0)
        return index;
    for (qsizetype i = 0; i < names.size(); ++i) {
        if (names.at(i).compare(name, Qt::CaseInsensitive) == 0)
            return i;
    }
    return -1;
}

Result<int> chosenLayer(const QList<geodata::PolygonLayer> &layers, const QString &wanted,
                        const QString &path)
{
    if (layers.isEmpty())
        return Error{QStringLiteral("MESS_ERR_NOPOLY_LAY"),
                     QStringLiteral("This datasource doesn't contain any polygon layer"), path};
    if (wanted.isEmpty())
        return 0;
    QStringList names;
    for (const geodata::PolygonLayer &layer : layers)
        names << layer.name;
    const qsizetype index = indexOfName(names, wanted);
    if (index < 0)
        return told(dico_label("MESS_CLI_NO_SUCH_LAYER",
                               "no layer of polygons has the name \"%1\"; there are: %2")
                        .arg(wanted, names.join(QStringLiteral(", "))),
                    path);
    return static_cast<int>(index);
}

/// The field that is asked for, else the one that the wizard chooses.
Result<QString> chosenField(const geodata::PolygonLayer &layer, const QString &wanted,
                            const QString &path)
{
    QStringList names;
    for (const geodata::VectorField &field : layer.fields) {
        if (!buildings::heightCaption(field).isEmpty())
            names << field.name;
    }
    if (!wanted.isEmpty()) {
        const qsizetype index = indexOfName(names, wanted);
        if (index >= 0)
            return names.at(index);
        return told(dico_label("MESS_CLI_NO_SUCH_FIELD",
                               "no field of heights has the name \"%1\"; there are: %2")
                        .arg(wanted, names.join(QStringLiteral(", "))),
                    path);
    }
    const QString guess = names.value(buildings::guessedHeightField(layer.fields));
    if (guess.isEmpty())
        return told(dico_label("MESS_CLI_NO_HEIGHT_FIELD",
                               "which field holds the heights? --height-field tells"),
                    path);
    return guess;
}

/// File, layer, field and place of the buildings; their number into `count`.
Result<BuildingsSource> readVector(const BuildingsRequest &request, const QString &path,
                                   qint64 &count)
{
    const auto opened = geodata::PolygonSource::open(absolute(path));
    if (!opened)
        return withReason("MESS_ERR_OPEN_VECTORDS", "This file can't be open as a vector file",
                          opened.error(), path);
    const QList<geodata::PolygonLayer> &layers = opened.value()->layers();
    const Result<int> index = chosenLayer(layers, request.layer, path);
    if (!index)
        return index.error();
    const geodata::PolygonLayer &layer = layers.at(index.value());
    const Result<QString> field = chosenField(layer, request.heightField, path);
    if (!field)
        return field.error();
    const geodata::Extent extent = opened.value()->extent(index.value());
    if (!extent.isPlaced())
        return Error{QStringLiteral("MESS_ERR_NO_EXTENT"),
                     QStringLiteral("No building of this layer has a place"), path};
    count = layer.featureCount;
    BuildingsSource source;
    source.file = absolute(path);
    source.layer = layer.name;
    source.heightField = field.value();
    source.xCenter = extent.centerX();
    source.yCenter = extent.centerY();
    return source;
}

Result<buildings::TerrainSettings> readTerrain(const QString &path,
                                               const std::optional<QString> &noData)
{
    const Result<geodata::RasterSummary> terrain = geodata::readRasterSummary(absolute(path));
    if (!terrain)
        return withReason("MESS_OUV_MNT_IMP", "Cannot open DTM", terrain.error(), path);
    if (terrain.value().bandCount < 1)
        return Error{QStringLiteral("MESS_ERR_NO_BANDS"),
                     QStringLiteral("This image doesn't have any band"), path};
    const std::optional<double> own = terrain.value().noData;
    return buildings::TerrainSettings{absolute(path),
                                      noData.value_or(own ? text::f6(*own) : QString())};
}

/// The colour map of a name in the installation's list, or of a file.
Result<colormaps::ColorMapEntry> chosenColorMap(const QString &wanted, const QString &installDir)
{
    const QList<colormaps::ColorMapEntry> maps = colormaps::listColorMaps(installDir, false);
    QStringList names;
    for (const colormaps::ColorMapEntry &map : maps)
        names << map.name;
    const qsizetype index = wanted.isEmpty() ? 0 : indexOfName(names, wanted);
    if (index >= 0 && index < maps.size())
        return maps.at(index);
    if (!wanted.isEmpty() && QFileInfo(wanted).isFile())
        return colormaps::colorMapEntry(absolute(wanted));
    return told(dico_label("MESS_CLI_NO_SUCH_CMAP",
                           "no colour map has this name, nor any file; there are: %1")
                    .arg(names.join(QStringLiteral(", "))),
                wanted);
}

/// Why a raster of several bands, or of none, does not serve; with the names of those that it
/// holds.
Error notOneBand(const geodata::RasterSummary &raster, const QString &path)
{
    QString text = raster.bandCount == 0
                       ? dico_label("MESS_ERR_NO_BANDS", "This image doesn't have any band")
                       : dico_label("MESS_ERR_ONLY_GRAY", "The image-based coloring mode works "
                                                          "only with one-band grey images");
    QStringList parts;
    for (const geodata::Subdataset &part : raster.subdatasets)
        parts << part.name;
    if (!parts.isEmpty())
        text += QStringLiteral("; ") +
                dico_label("MESS_CLI_SUBDATASETS", "it holds several images, each with a name: %1")
                    .arg(parts.join(QStringLiteral(", ")));
    return told(text, path);
}

/// Opens the raster that colours come from; its absolute name into `coloring`.
Result<std::shared_ptr<coverage::CoverageRaster>> openRaster(RasterColoring &coloring)
{
    const QString given = coloring.rasterFile;
    const QString file = fileOfDataset(given);
    if (file.isEmpty())
        return Error{QStringLiteral("MESS_SNAP_NO_FILE"), QStringLiteral("no such file"), given};
    coloring.rasterFile = absoluteDatasetName(given);
    const QString path = absolute(file);
    const bool isPart = coloring.rasterFile != path;
    const auto summary = geodata::readRasterSummary(path, isPart ? coloring.rasterFile : QString());
    const char *const unreadable = "This file can't be open as a raster dataset";
    if (!summary)
        return withReason("MESS_ERR_OPEN_RASTERDS", unreadable, summary.error(), given);
    if (summary.value().bandCount != 1)
        return notOneBand(summary.value(), given);
    const geodata::ErrorCollector errors; // they come back as reasons
    std::string reason;
    std::shared_ptr<coverage::CoverageRaster> raster =
        coverage::CoverageRaster::open(QFile::encodeName(coloring.rasterFile).toStdString(),
                                       coloring.noData.toStdString(), &reason);
    if (!raster)
        return withReason("MESS_ERR_OPEN_RASTERDS", unreadable,
                          told(QString::fromLocal8Bit(reason.c_str()), given), given);
    return raster;
}

/// Image and colour map looked at; the legend laid over the values that they are used for.
Result<buildings::LegendInput> readColoring(RasterColoring &coloring, const QString &installDir)
{
    const QString image = coloring.rasterFile;
    const auto raster = openRaster(coloring);
    if (!raster)
        return raster.error();
    const auto map = chosenColorMap(coloring.colorMap, installDir);
    if (!map)
        return map.error();
    coloring.colorMap = map.value().path;

    const std::optional<coverage::ValueRange> range =
        coloring.stretched ? raster.value()->range() : std::nullopt;
    if (coloring.stretched && !range)
        return told(dico_label("MESS_CLI_NO_VALUES", "none of its pixels has a value"), image);
    auto legend = buildings::legendOf(coloring, range);
    if (!legend)
        return withReason("MESS_ERR_OPEN_CMAP", "This file can't be read as a colormap",
                          legend.error(), coloring.colorMap);
    return legend;
}

/// The vector file that is given, else the project's.
Result<QString> vectorFile(const QString &given, const QString &project)
{
    if (!given.isEmpty() || project.isEmpty())
        return given;
    Result<QString> found = project::buildingVectorFile(project);
    if (found && found.value().isEmpty())
        return told(dico_label("MESS_CLI_NO_BUILDINGS", "the project names no buildings: give "
                                                        "their file"),
                    project);
    return found;
}

Result<BuildingsInputs> readFiles(const BuildingsRequest &request, const Surroundings &surroundings)
{
    BuildingsInputs inputs;
    const QString project = surroundings.project.projectPath;
    const Result<QString> vector = vectorFile(request.vector, project);
    if (!vector)
        return vector.error();
    const Result<BuildingsSource> source =
        readVector(request, vector.value(), inputs.buildingCount);
    if (!source)
        return source.error();
    const QString dtm =
        request.terrain.isEmpty() ? surroundings.project.terrainFile : request.terrain;
    if (dtm.isEmpty())
        return told(dico_label("MESS_CLI_NO_DTM", "the project names no terrain: give --dtm"),
                    project);
    const auto terrain = readTerrain(dtm, request.terrainNoData);
    if (!terrain)
        return terrain.error();
    inputs.layer.source = source.value();
    inputs.layer.source.terrain = terrain.value();
    inputs.layer.source.project = project;
    inputs.layer.footprints = request.footprints;
    inputs.layer.installDir = surroundings.installDir;
    inputs.files = {vector.value(), dtm, project};
    return inputs;
}

} // namespace

Result<BuildingsInputs> readBuildingsInputs(const BuildingsRequest &request,
                                            const Surroundings &surroundings, bool quiet)
{
    Result<BuildingsInputs> read = readFiles(request, surroundings);
    if (!read)
        return read;
    BuildingsInputs inputs = read.value();
    if (request.image) {
        inputs.coloring = *request.image;
        const auto legend = readColoring(inputs.coloring, surroundings.installDir);
        if (!legend)
            return legend.error();
        inputs.layer.legend = legend.value();
        inputs.files += {fileOfDataset(inputs.coloring.rasterFile), inputs.coloring.colorMap};
    }
    if (!request.textures)
        return inputs;

    inputs.look = request.textures->look;
    for (QString *color : {&inputs.look.wallColor, &inputs.look.roofColor}) {
        if (*color == QLatin1String(ColorMapWord))
            *color = buildings::colorMapColor(inputs.coloring);
    }
    const auto images = readTextures(*request.textures, quiet);
    if (!images)
        return images.error();
    inputs.look.textures->images = images.value();
    for (const buildings::FileEntry &image : images.value())
        inputs.files += fileOfDataset(image.file.filePath());
    return inputs;
}

} // namespace vlt::batch
