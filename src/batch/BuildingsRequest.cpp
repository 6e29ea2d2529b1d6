#include "batch/BuildingsRequest.h"

#include "batch/BuildingsOptions.h"
#include "batch/BuildingsValues.h"
#include "batch/ColorText.h"
#include "batch/OutputFiles.h"
#include "contract/NoDataText.h"
#include "language/VltLanguageManager.h"

namespace vlt::batch {

namespace {

using buildings::RasterColoring;
using contract::BuildingCache;
using contract::BuildingTextures;
using contract::Reduction;

/// Options that are allowed only with another option.
const QStringList OfImage = {QStringLiteral("band"), QStringLiteral("image-nodata"),
                             QStringLiteral("mode")};
const QStringList OfMap = {QStringLiteral("colormap"), QStringLiteral("absolute"),
                           QStringLiteral("stretch"), QStringLiteral("color-ranges")};
const QStringList NotOfField = {QStringLiteral("image"), QStringLiteral("texture"),
                                QStringLiteral("textures"), QStringLiteral("wall-color"),
                                QStringLiteral("roof-color")};
const QStringList OfFolders = {QStringLiteral("structure"), QStringLiteral("filter")};
const QStringList OfTextures = {
    QStringLiteral("texture-on"),  QStringLiteral("textured-distance"),
    QStringLiteral("edge-color"),  QStringLiteral("force-edges"),
    QStringLiteral("compression"), QStringLiteral("no-complex-buildings"),
    QStringLiteral("buffer"),      QStringLiteral("dilatation"),
    QStringLiteral("magnify")};
const QStringList TexturingOptions = {QStringLiteral("cache"), QStringLiteral("delayed-write"),
                                      QStringLiteral("cache-capacity")};

/// Reads the colour of an option as "#rrggbb"; empty for ColorMapWord if that is allowed.
Result<QString> readColor(const QCommandLineParser &parser, const QString &option,
                          const char *firstRun, bool mayBeFromMap)
{
    if (!parser.isSet(option))
        return QString(QLatin1String(firstRun));
    const QString value = parser.value(option);
    if (mayBeFromMap && value == QLatin1String(ColorMapWord))
        return QString();
    const std::optional<QColor> color = colorFrom(value);
    if (!color)
        return wrongValue(option,
                          mayBeFromMap
                              ? dico_label("MESS_USE_COLOR_OR_MAP",
                                           "RRGGBB, a name such as red or the word colormap")
                              : dico_label("MESS_USE_COLOR", "RRGGBB or a name such as red"),
                          value);
    return color->name();
}

Result<int> readBand(const QCommandLineParser &parser)
{
    const QString option = QStringLiteral("band");
    if (!parser.isSet(option))
        return contract::RasterBand.firstRun;
    bool isNumber = false;
    const int band = parser.value(option).toInt(&isNumber);
    if (isNumber && contract::Range(contract::RasterBand).contains(band))
        return band;
    return wrongValue(option, dico_label("MESS_USE_BAND", "the number of a band, from 1"),
                      parser.value(option));
}

/// Checks an option for the value of missing data: a number or an empty text.
std::optional<Error> checkNoData(const QCommandLineParser &parser, const QString &option)
{
    const QString value = parser.value(option);
    if (contract::isNoDataText(value.toStdString()))
        return std::nullopt;
    return wrongValue(option, dico_label("MESS_USE_ANY_NUMBER", "a number"), value);
}

bool hasTextures(const QCommandLineParser &parser)
{
    return parser.isSet(QStringLiteral("texture")) || parser.isSet(QStringLiteral("textures"));
}

/// Whether an image or a field colours the buildings.
bool hasColoring(const QCommandLineParser &parser)
{
    return parser.isSet(QStringLiteral("image")) || parser.isSet(QStringLiteral("color-field"));
}

/// Whether the options give the buildings more than these colours.
bool hasTexturingOptions(const QCommandLineParser &parser)
{
    return hasTextures(parser) || !hasColoring(parser) ||
           parser.isSet(QStringLiteral("wall-color")) || parser.isSet(QStringLiteral("roof-color"));
}

std::optional<Error> checkCompanions(const QCommandLineParser &parser)
{
    const auto refused = [&parser](const QStringList &options, const QString &why) {
        for (const QString &option : options) {
            if (parser.isSet(option))
                return std::optional(wrongUsage(why.arg(QStringLiteral("--") + option)));
        }
        return std::optional<Error>();
    };
    const bool hasFolders = parser.isSet(QStringLiteral("textures"));
    if (hasFolders && parser.isSet(QStringLiteral("texture")))
        return wrongUsage(
            dico_label("MESS_USE_BOTH_TEXTURES", "--texture and --textures cannot be combined"));
    std::optional<Error> error;
    if (!parser.isSet(QStringLiteral("image")))
        error = refused(OfImage, dico_label("MESS_USE_ONLY_IMAGE", "%1 needs --image"));
    if (!error && !hasColoring(parser))
        error =
            refused(OfMap, dico_label("MESS_USE_ONLY_COLORS", "%1 needs --image or --color-field"));
    if (!error && parser.isSet(QStringLiteral("color-field")))
        error = refused(NotOfField, dico_label("MESS_USE_NOT_FIELD",
                                               "%1 and --color-field cannot be combined"));
    if (!error && !hasFolders)
        error = refused(OfFolders, dico_label("MESS_USE_ONLY_SET", "%1 needs --textures"));
    if (!error && !hasTextures(parser))
        error = refused(OfTextures,
                        dico_label("MESS_USE_ONLY_TEXTURES", "%1 needs --texture or --textures"));
    if (!error && !hasTexturingOptions(parser))
        error = refused(TexturingOptions,
                        dico_label("MESS_USE_NOT_IMAGE",
                                   "%1 cannot be used when --image alone colors the buildings"));
    return error;
}

Result<RasterColoring> readImage(const QCommandLineParser &parser)
{
    RasterColoring image;
    image.rasterFile = parser.value(QStringLiteral("image"));
    image.field = parser.value(QStringLiteral("color-field"));
    if (image.rasterFile.isEmpty() && image.field.isEmpty())
        return wrongUsage(dico_label("MESS_USE_NO_VALUE", "%1 needs a value")
                              .arg(parser.isSet(QStringLiteral("image"))
                                       ? QStringLiteral("--image")
                                       : QStringLiteral("--color-field")));
    if (const auto error = checkNoData(parser, QStringLiteral("image-nodata")))
        return *error;
    image.noData = parser.value(QStringLiteral("image-nodata"));
    const Result<int> band = readBand(parser);
    if (!band)
        return band.error();
    image.band = band.value();
    image.hasBand = parser.isSet(QStringLiteral("band"));
    image.colorMap = parser.value(QStringLiteral("colormap"));
    image.stretched = !parser.isSet(QStringLiteral("absolute"));
    const QString stretch = QStringLiteral("stretch");
    if (parser.isSet(stretch)) {
        const auto chosen = buildings::parseStretch(parser.values(stretch));
        if (!chosen)
            return wrongValue(stretch, QLatin1String(StretchWords),
                              parser.values(stretch).join(QLatin1Char(' ')));
        if (!image.stretched)
            return wrongUsage(
                dico_label("MESS_USE_BOTH_STRETCH", "--absolute and --stretch cannot be combined"));
        if (chosen->kind == buildings::Stretch::Shared && !image.field.isEmpty())
            return wrongUsage(dico_label("MESS_USE_ONLY_IMAGE", "%1 needs --image")
                                  .arg(QStringLiteral("--stretch with")));
        image.stretch = *chosen;
    }
    image.interpolated = !parser.isSet(QStringLiteral("color-ranges"));
    const QString option = QStringLiteral("mode");
    const auto documentWord = wordsOf(contract::ReductionWords).indexOf(parser.value(option));
    const Result<int> mode = documentWord >= 0 ? Result<int>(static_cast<int>(documentWord))
                                               : readWord(parser, option, reductionWords());
    if (!mode)
        return mode.error();
    image.reduction = static_cast<Reduction>(mode.value());
    return image;
}

Result<BuildingCache> readCache(const QCommandLineParser &parser, const BuildingsMeasures &measures)
{
    const Result<int> mode =
        readWord(parser, QStringLiteral("cache"), wordsOf(contract::CacheModeWords));
    if (!mode)
        return mode.error();
    if (mode.value() > 0)
        return BuildingCache{static_cast<contract::CacheMode>(mode.value()),
                             parser.isSet(QStringLiteral("delayed-write")), measures.cacheCapacity};
    for (const char *option : {"delayed-write", "cache-capacity"}) {
        if (parser.isSet(QLatin1String(option)))
            return wrongUsage(dico_label("MESS_USE_NEEDS_CACHE", "--%1 needs --cache")
                                  .arg(QLatin1String(option)));
    }
    return BuildingCache();
}

Result<BuildingTextures> readTextures(const QCommandLineParser &parser,
                                      const BuildingsMeasures &measures)
{
    BuildingTextures textures;
    const Result<QString> edges =
        readColor(parser, QStringLiteral("edge-color"), contract::FirstEdgeColor, false);
    if (!edges)
        return edges.error();
    textures.edgeColor = edges.value().toStdString();
    textures.forceEdgeCreation = parser.isSet(QStringLiteral("force-edges"));
    textures.processComplexBuildings = !parser.isSet(QStringLiteral("no-complex-buildings"));
    const Result<int> compression =
        readWord(parser, QStringLiteral("compression"), wordsOf(contract::TextureCompressionWords));
    if (!compression)
        return compression.error();
    textures.compression = static_cast<contract::TextureCompression>(compression.value());
    if (parser.isSet(QStringLiteral("buffer")))
        textures.bufferM = measures.bufferM;
    if (parser.isSet(QStringLiteral("dilatation")))
        textures.dilatationPixels = measures.dilatationPixels;
    const Result<int> filter =
        readWord(parser, QStringLiteral("magnify"), wordsOf(contract::MagFilterWords));
    if (!filter)
        return filter.error();
    textures.magFilter = static_cast<contract::MagFilter>(filter.value());
    return textures;
}

/// Reads the parameters without the textures.
Result<buildings::TexturingParameters> readTexturingParameters(const QCommandLineParser &parser,
                                                               const BuildingsMeasures &measures)
{
    const Result<QString> walls =
        readColor(parser, QStringLiteral("wall-color"), contract::FirstWallColor, true);
    const Result<QString> roofs =
        readColor(parser, QStringLiteral("roof-color"), contract::FirstRoofColor, true);
    const auto cache = readCache(parser, measures);
    if (!walls)
        return walls.error();
    if (!roofs)
        return roofs.error();
    if (!cache)
        return cache.error();
    const bool usesMap = walls.value().isEmpty() || roofs.value().isEmpty();
    const bool hasImage = parser.isSet(QStringLiteral("image"));
    if (usesMap && !hasImage)
        return wrongUsage(dico_label("MESS_USE_NEEDS_IMAGE", "the color colormap needs --image"));
    if (hasImage && !usesMap)
        return wrongUsage(dico_label(
            "MESS_USE_NEEDS_COLORMAP",
            "--image needs --wall-color colormap or --roof-color colormap for these buildings"));
    buildings::TexturingParameters texturing;
    texturing.cache = cache.value();
    texturing.texturedVisibilityM = measures.texturedDistanceM;
    texturing.wallColor = walls.value();
    texturing.roofColor = roofs.value();
    return texturing;
}

/// Reads where the images are and how they are placed on the buildings.
std::optional<Error> readTextureChoice(const QCommandLineParser &parser,
                                       const BuildingsMeasures &measures, BuildingsRequest &request)
{
    TextureChoice &choice = request.textures;
    choice.files = parser.values(QStringLiteral("texture"));
    choice.templateFile = parser.value(QStringLiteral("textures"));
    choice.filter = parser.value(QStringLiteral("filter"));
    if (choice.files.contains(QString()) ||
        (choice.files.isEmpty() && choice.templateFile.isEmpty()))
        return wrongUsage(
            dico_label("MESS_USE_TEXTURES_EMPTY", "--texture and --textures need a value"));
    const Result<int> structure =
        readWord(parser, QStringLiteral("structure"), wordsOf(StructureWords));
    if (!structure)
        return structure.error();
    choice.structure = static_cast<buildings::DataStructure>(structure.value());
    const Result<int> part =
        readWord(parser, QStringLiteral("texture-on"), wordsOf(contract::TextureModeWords));
    if (!part)
        return part.error();
    const Result<BuildingTextures> textures = readTextures(parser, measures);
    if (!textures)
        return textures.error();
    request.texturing->mode = static_cast<contract::TextureMode>(part.value());
    request.texturing->textures = textures.value();
    return std::nullopt;
}

} // namespace

Result<BuildingsRequest> readBuildingsRequest(const QCommandLineParser &parser)
{
    BuildingsRequest request;
    request.vector = parser.positionalArguments().value(0);
    request.output = parser.value(QStringLiteral("output"));
    if (request.output.isEmpty())
        return wrongUsage(dico_label("MESS_USE_NO_OUTPUT", "no output file given (-o OUT.lay)"));
    if (isStandardOutput(request.output))
        return wrongUsage(dico_label("MESS_USE_NO_STANDARD_OUTPUT",
                                     "'-o -': a layer of buildings must be a file, because its "
                                     "document is written beside it"));
    request.layer = parser.value(QStringLiteral("layer"));
    request.heightField = parser.value(QStringLiteral("height-field"));
    request.terrain = parser.value(QStringLiteral("dtm"));
    if (const auto error = checkNoData(parser, QStringLiteral("dtm-nodata")))
        return *error;
    if (parser.isSet(QStringLiteral("dtm-nodata")))
        request.terrainNoData = parser.value(QStringLiteral("dtm-nodata"));
    const Result<HeightChoice> heights = readHeightOptions(parser);
    if (!heights)
        return heights.error();
    request.heights = heights.value();
    const auto values = readValuesOptions(parser);
    if (!values)
        return values.error();
    request.values = values.value();
    BuildingsMeasures measures;
    if (const auto error = readNumberOptions(parser, buildingsNumbers(), measures))
        return *error;
    request.footprints.extrudedVisibilityM = measures.distanceM;
    request.footprints.tileSizeM = measures.tileSizeM;
    request.footprints.skirtHeightM = measures.skirtM;
    request.footprints.checkClockwise = parser.isSet(QStringLiteral("check-clockwise"));

    if (const auto error = checkCompanions(parser))
        return *error;
    if (hasColoring(parser)) {
        const Result<RasterColoring> image = readImage(parser);
        if (!image)
            return image.error();
        request.image = image.value();
    }
    if (!hasTexturingOptions(parser))
        return request;
    const Result<buildings::TexturingParameters> texturing =
        readTexturingParameters(parser, measures);
    if (!texturing)
        return texturing.error();
    request.texturing = texturing.value();
    if (hasTextures(parser)) {
        if (const auto error = readTextureChoice(parser, measures, request))
            return *error;
    }
    return request;
}

} // namespace vlt::batch
