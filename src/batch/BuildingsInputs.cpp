#include "batch/BuildingsInputs.h"

#include "batch/BuildingsColoring.h"
#include "batch/BuildingsOptions.h"
#include "batch/BuildingsTextures.h"
#include "batch/DatasetNames.h"
#include "batch/InputNames.h"
#include "buildings/FieldColors.h"
#include "buildings/HeightGuess.h"
#include "buildings/SourceSummary.h"
#include "geodata/PolygonSource.h"
#include "geodata/RasterSource.h"
#include "language/VltLanguageManager.h"
#include "text/Numbers.h"
#include "wizard/project/ProjectReaders.h"

namespace vlt::batch {

namespace {

using buildings::BuildingsSource;

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
        return Error::asIs(dico_label("MESS_CLI_NO_SUCH_LAYER",
                                      "there is no layer of polygons \"%1\"; the layers are: %2")
                               .arg(wanted, names.join(QStringLiteral(", "))),
                           path);
    return static_cast<int>(index);
}

/// The requested field, else the one that the source page of the wizard selects or, where it
/// selects none, names.
Result<QString> chosenField(const geodata::PolygonLayer &layer, const QString &wanted,
                            const QString &path)
{
    if (!wanted.isEmpty())
        return findHeightField(layer, wanted, path);
    QString guess = buildings::preselectedHeightField(layer);
    if (guess.isEmpty())
        guess = buildings::likelierHeightField(layer, {});
    if (guess.isEmpty())
        return Error::asIs(
            dico_label("MESS_CLI_NO_HEIGHT_FIELD",
                       "no field with the heights was found: give its name with --height-field; "
                       "the fields are: %1")
                .arg(buildings::possibleHeightFields(layer).join(QStringLiteral(", "))),
            path);
    return guess;
}

/// File, layer, field and extent of the buildings.
struct Footprints
{
    BuildingsSource source;
    geodata::PolygonLayer layer;
    QStringList warnings;            ///< about the choice of the height field and the units
    geodata::VectorField colorField; ///< without a name if no field colors the buildings
};

/// The field of numbers or texts that is requested for the colours.
Result<geodata::VectorField> chosenColorField(const geodata::PolygonLayer &layer,
                                              const QString &wanted, const QString &path)
{
    const QList<geodata::VectorField> fields = buildings::colorFields(layer.fields);
    QStringList names;
    for (const geodata::VectorField &field : fields)
        names << field.name;
    const qsizetype index = indexOfName(names, wanted);
    if (index >= 0)
        return fields.at(index);
    return Error::asIs(
        dico_label("MESS_CLI_NO_COLOR_FIELD",
                   "there is no field \"%1\" of numbers or texts; the fields are: %2")
            .arg(wanted, names.join(QStringLiteral(", "))),
        path);
}

Result<Footprints> readVector(const BuildingsRequest &request, const QString &path)
{
    const auto opened = geodata::PolygonSource::open(absolutePath(path));
    if (!opened)
        return opened.error().withPath(path);
    const QList<geodata::PolygonLayer> &layers = opened.value()->layers();
    const Result<int> index = chosenLayer(layers, request.layer, path);
    if (!index)
        return index.error();
    const geodata::PolygonLayer &layer = layers.at(index.value());
    const Result<QString> field = chosenField(layer, request.heightField, path);
    if (!field)
        return field.error();
    Footprints footprints;
    if (request.image && !request.image->field.isEmpty()) {
        const auto colorField = chosenColorField(layer, request.image->field, path);
        if (!colorField)
            return colorField.error();
        footprints.colorField = colorField.value();
    }
    if (const QString hint = buildings::heightHint(layer, buildings::preselectedHeightField(layer));
        request.heightField.isEmpty() && !hint.isEmpty())
        footprints.warnings << hint;
    const Result<contract::BuildingHeights> heights =
        heightsOf(request.heights, layer, field.value(), path, footprints.warnings);
    if (!heights)
        return heights.error();
    if (const auto refusal = opened.value()->conditionRefused(index.value(), request.heights.where))
        return *refusal;
    const geodata::Extent extent = opened.value()->extent(index.value());
    if (!extent.isPlaced())
        return Error{QStringLiteral("MESS_ERR_NO_EXTENT"),
                     QStringLiteral("No building of this layer has a position"), path};
    footprints.layer = layer;
    BuildingsSource &source = footprints.source;
    source.file = absolutePath(path);
    source.layer = layer.name;
    source.heightField = field.value();
    source.heights = heights.value();
    source.where = request.heights.where;
    source.xCenter = extent.centerX();
    source.yCenter = extent.centerY();
    return footprints;
}

struct Terrain
{
    QString noData;  ///< the given value, else that of the file, else empty
    QString warning; ///< about a raster that is probably no terrain; else empty
};

Result<Terrain> readTerrain(const QString &path, const std::optional<QString> &noData)
{
    const Result<geodata::RasterSummary> terrain = geodata::readRasterSummary(absolutePath(path));
    if (!terrain)
        return Error{QStringLiteral("MESS_OUV_MNT_IMP"), QStringLiteral("Cannot open DTM"), path,
                     terrain.error().detail};
    if (terrain.value().bandCount < 1)
        return Error{QStringLiteral("MESS_ERR_NO_BANDS"),
                     QStringLiteral("This image doesn't have any band"), path};
    const std::optional<double> own = terrain.value().noData;
    Terrain read{noData.value_or(own ? text::f6(*own) : QString()), {}};
    if (terrain.value().holdsColors)
        read.warning =
            path + QStringLiteral(": ") +
            dico_label("MESS_DTM_IS_PICTURE", "This raster is probably a picture: its first band "
                                              "holds colors, which would be read as heights");
    return read;
}

/// The given vector file, else that of the project.
Result<QString> vectorFile(const QString &given, const QString &project)
{
    if (!given.isEmpty() || project.isEmpty())
        return given;
    Result<QString> found = project::buildingVectorFile(project);
    if (found && found.value().isEmpty())
        return Error::asIs(
            dico_label("MESS_CLI_NO_BUILDINGS", "the project names no buildings: give their file"),
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
    const Result<Footprints> footprints = readVector(request, vector.value());
    if (!footprints)
        return footprints.error();
    const QString dtm =
        request.terrain.isEmpty() ? surroundings.project.terrainFile : request.terrain;
    if (dtm.isEmpty())
        return Error::asIs(
            dico_label("MESS_CLI_NO_DTM", "the project names no terrain: give --dtm"), project);
    const Result<Terrain> terrain = readTerrain(dtm, request.terrainNoData);
    if (!terrain)
        return terrain.error();
    inputs.layer.source = footprints.value().source;
    inputs.vector = footprints.value().layer;
    inputs.layer.source.terrainFile = absolutePath(dtm);
    inputs.layer.source.terrainNoData = terrain.value().noData;
    inputs.layer.source.project = project;
    inputs.layer.footprints = request.footprints;
    inputs.layer.installDir = surroundings.installDir;
    inputs.warnings = footprints.value().warnings;
    if (request.image)
        inputs.coloring = *request.image;
    inputs.coloring.field = footprints.value().colorField.name;
    inputs.coloring.isText = footprints.value().colorField.kind == geodata::FieldKind::String;
    if (!terrain.value().warning.isEmpty())
        inputs.warnings << terrain.value().warning;
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
        const auto legend = readColoring(inputs.coloring, inputs.layer, quiet, inputs.warnings);
        if (!legend)
            return legend.error();
        inputs.layer.legend = legend.value();
        inputs.files += {fileOfDataset(inputs.coloring.rasterFile), inputs.coloring.colorMap};
        for (const QString &other : inputs.coloring.stretch.others)
            inputs.files << fileOfDataset(other);
    }
    if (!request.texturing)
        return inputs;

    inputs.texturing = *request.texturing;
    inputs.texturing.coloring = inputs.coloring;
    if (!inputs.texturing.textures)
        return inputs;
    const auto images = readTextures(request.textures, quiet);
    if (!images)
        return images.error();
    inputs.texturing.images = images.value();
    for (const buildings::FileEntry &image : images.value())
        inputs.files += fileOfDataset(image.file.filePath());
    return inputs;
}

} // namespace vlt::batch
