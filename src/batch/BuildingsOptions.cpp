#include "batch/BuildingsOptions.h"

#include "batch/NumberOptions.h"

#include <QRegularExpression>

namespace vlt::batch {

namespace {

using buildings::CacheSettings;
using buildings::RasterColoring;
using buildings::Reduction;
using buildings::TexbSubtype;
using buildings::TexbTextures;

const QString WallColor = QStringLiteral("#d9d4c7");
const QString RoofColor = QStringLiteral("#b5634c");
const QString EdgeColor = QStringLiteral("#404040");

const QStringList Reductions = {QStringLiteral("minimum"), QStringLiteral("maximum"),
                                QStringLiteral("average"), QStringLiteral("most-represented")};
const QStringList Structures = {QStringLiteral("same-folder"), QStringLiteral("sibling-folders"),
                                QStringLiteral("two-levels")};

/// Options that make no sense without another one.
const QStringList OfImage = {QStringLiteral("image-nodata"), QStringLiteral("colormap"),
                             QStringLiteral("absolute"), QStringLiteral("color-ranges"),
                             QStringLiteral("mode")};
const QStringList OfFolders = {QStringLiteral("structure"), QStringLiteral("filter")};
const QStringList OfTextures = {
    QStringLiteral("texture-on"),        QStringLiteral("textured-distance"),
    QStringLiteral("wall-color"),        QStringLiteral("roof-color"),
    QStringLiteral("edge-color"),        QStringLiteral("force-edges"),
    QStringLiteral("complex-buildings"), QStringLiteral("cache"),
    QStringLiteral("delayed-write"),     QStringLiteral("cache-capacity"),
    QStringLiteral("compression"),       QStringLiteral("buffer"),
    QStringLiteral("dilatation"),        QStringLiteral("magnify")};

template<std::size_t N>
QStringList wordsOf(const char *const (&words)[N])
{
    QStringList list;
    for (const char *word : words)
        list << QLatin1String(word);
    return list;
}

const std::vector<NumberOption<BuildingsMeasures>> &numberOptions()
{
    static const std::vector<NumberOption<BuildingsMeasures>> options = {
        {QStringLiteral("distance"),
         QStringLiteral("Distance in metres up to which the buildings are shown"),
         &BuildingsMeasures::distance,
         {100, 100000}},
        {QStringLiteral("tile-size"),
         QStringLiteral("Side in metres of the tiles that the buildings are shared out to"),
         &BuildingsMeasures::tileSize,
         {10, 100000}},
        {QStringLiteral("skirt"),
         QStringLiteral("Metres that walls go down below the ground"),
         &BuildingsMeasures::skirt,
         {0, 1000}},
        {QStringLiteral("textured-distance"),
         QStringLiteral("Distance in metres up to which the images are shown"),
         &BuildingsMeasures::texturedDistance,
         {100, 100000}},
        {QStringLiteral("cache-capacity"),
         QStringLiteral("Elements that wait before they are written to the cache"),
         &BuildingsMeasures::cacheCapacity,
         {1, 1000000}},
        {QStringLiteral("buffer"),
         QStringLiteral("Metres outside a wall at which its colours are taken; not used unless "
                        "given"),
         &BuildingsMeasures::buffer,
         {0, 1000}},
        {QStringLiteral("dilatation"),
         QStringLiteral("Pixels by which the colours of an image grow into empty ones; not used "
                        "unless given"),
         &BuildingsMeasures::dilatation,
         {1, 100}},
    };
    return options;
}

Error usage(const QString &text)
{
    return {QString(), text, {}};
}

Error wrongValue(const QString &option, const QString &wanted, const QString &value)
{
    return usage(QStringLiteral("--%1 is %2, not \"").arg(option, wanted) + value +
                 QLatin1Char('"'));
}

/// Position of an option's value among the words; the first where it is not given.
Result<int> readWord(const QCommandLineParser &parser, const QString &option,
                     const QStringList &words)
{
    if (!parser.isSet(option))
        return 0;
    const QString value = parser.value(option);
    const auto index = static_cast<int>(words.indexOf(value));
    return index < 0 ? Result<int>(wrongValue(option, words.join(QLatin1Char('|')), value))
                     : Result<int>(index);
}

/// An option that tells a colour: "#RRGGBB", or ColorMapWord where that is allowed.
Result<QString> readColor(const QCommandLineParser &parser, const QString &option,
                          const QString &firstRun, bool mayBeFromMap)
{
    static const QRegularExpression hex(QStringLiteral("\\A#?([0-9a-fA-F]{6})\\z"));
    if (!parser.isSet(option))
        return firstRun;
    const QString value = parser.value(option);
    if (mayBeFromMap && value == QLatin1String(ColorMapWord))
        return value;
    const QRegularExpressionMatch match = hex.match(value);
    if (!match.hasMatch())
        return wrongValue(option,
                          mayBeFromMap ? QStringLiteral("#RRGGBB or the word colormap")
                                       : QStringLiteral("#RRGGBB"),
                          value);
    return QString(QLatin1Char('#') + match.captured(1).toLower());
}

/// A text that stands for missing values: a number, or empty.
std::optional<Error> checkNoData(const QCommandLineParser &parser, const QString &option)
{
    bool isNumber = false;
    const QString value = parser.value(option);
    value.toDouble(&isNumber);
    if (value.isEmpty() || isNumber)
        return std::nullopt;
    return wrongValue(option, QStringLiteral("a number"), value);
}

std::optional<Error> checkCompanions(const QCommandLineParser &parser)
{
    const bool hasImage = parser.isSet(QStringLiteral("image"));
    const bool hasFolders = parser.isSet(QStringLiteral("textures"));
    const bool hasFiles = parser.isSet(QStringLiteral("texture"));
    const auto missing = [&parser](const QStringList &options, const QString &companion) {
        for (const QString &option : options) {
            if (parser.isSet(option))
                return std::optional(
                    usage(QStringLiteral("--%1 is only for %2").arg(option, companion)));
        }
        return std::optional<Error>();
    };
    if (hasFolders && hasFiles)
        return usage(QStringLiteral("--texture and --textures do not go together"));
    if (!hasImage && !hasFolders && !hasFiles)
        return usage(QStringLiteral("neither --image (coloured buildings) nor --texture or "
                                    "--textures (textured ones) is given"));
    std::optional<Error> error;
    if (!hasImage)
        error = missing(OfImage, QStringLiteral("--image"));
    if (!error && !hasFolders)
        error = missing(OfFolders, QStringLiteral("--textures"));
    if (!error && !hasFolders && !hasFiles)
        error = missing(OfTextures, QStringLiteral("--texture and --textures"));
    return error;
}

Result<RasterColoring> readImage(const QCommandLineParser &parser)
{
    RasterColoring image;
    image.rasterFile = parser.value(QStringLiteral("image"));
    if (image.rasterFile.isEmpty())
        return usage(QStringLiteral("--image needs a value"));
    if (const auto error = checkNoData(parser, QStringLiteral("image-nodata")))
        return *error;
    image.noData = parser.value(QStringLiteral("image-nodata"));
    image.colorMap = parser.value(QStringLiteral("colormap"));
    image.stretched = !parser.isSet(QStringLiteral("absolute"));
    image.interpolated = !parser.isSet(QStringLiteral("color-ranges"));
    const bool isDocumentWord = parser.value(QStringLiteral("mode")) ==
                                buildings::reductionName(Reduction::MostRepresented);
    const Result<int> mode = isDocumentWord
                                 ? Result<int>(static_cast<int>(Reduction::MostRepresented))
                                 : readWord(parser, QStringLiteral("mode"), Reductions);
    if (!mode)
        return mode.error();
    image.reduction = static_cast<Reduction>(mode.value());
    return image;
}

Result<std::optional<CacheSettings>> readCache(const QCommandLineParser &parser,
                                               const BuildingsMeasures &measures)
{
    const QStringList modes = wordsOf(buildings::CacheModes);
    const Result<int> mode = readWord(parser, QStringLiteral("cache"), modes);
    if (!mode)
        return mode.error();
    if (mode.value() > 0)
        return std::optional(CacheSettings{modes.at(mode.value()),
                                           parser.isSet(QStringLiteral("delayed-write")),
                                           measures.cacheCapacity});
    for (const char *option : {"delayed-write", "cache-capacity"}) {
        if (parser.isSet(QLatin1String(option)))
            return usage(QStringLiteral("--%1 needs a --cache").arg(QLatin1String(option)));
    }
    return std::optional<CacheSettings>();
}

Result<TexbTextures> readTextures(const QCommandLineParser &parser,
                                  const BuildingsMeasures &measures)
{
    TexbTextures textures;
    const Result<QString> edges = readColor(parser, QStringLiteral("edge-color"), EdgeColor, false);
    if (!edges)
        return edges.error();
    textures.edgeColor = edges.value();
    textures.forceEdgeCreation = parser.isSet(QStringLiteral("force-edges"));
    textures.processComplexBuildings = parser.isSet(QStringLiteral("complex-buildings"));
    const QStringList compressions = wordsOf(buildings::Compressions);
    const Result<int> compression = readWord(parser, QStringLiteral("compression"), compressions);
    if (!compression)
        return compression.error();
    if (compression.value() > 0)
        textures.compression = compressions.at(compression.value());
    if (parser.isSet(QStringLiteral("buffer")))
        textures.bufferValue = measures.buffer;
    if (parser.isSet(QStringLiteral("dilatation")))
        textures.dilatationValue = measures.dilatation;
    const QStringList filters = wordsOf(buildings::MagFilters);
    const Result<int> filter = readWord(parser, QStringLiteral("magnify"), filters);
    if (!filter)
        return filter.error();
    textures.magFilter = filters.at(filter.value());
    return textures;
}

Result<buildings::TexturedLook> readLook(const QCommandLineParser &parser,
                                         const BuildingsMeasures &measures)
{
    constexpr TexbSubtype subtypes[] = {TexbSubtype::Roofs, TexbSubtype::Walls,
                                        TexbSubtype::Storeys};
    const Result<int> place =
        readWord(parser, QStringLiteral("texture-on"), wordsOf(buildings::TextureModes));
    const Result<QString> walls = readColor(parser, QStringLiteral("wall-color"), WallColor, true);
    const Result<QString> roofs = readColor(parser, QStringLiteral("roof-color"), RoofColor, true);
    const auto cache = readCache(parser, measures);
    const Result<TexbTextures> textures = readTextures(parser, measures);
    if (!place)
        return place.error();
    if (!walls)
        return walls.error();
    if (!roofs)
        return roofs.error();
    if (!cache)
        return cache.error();
    if (!textures)
        return textures.error();
    return buildings::TexturedLook{
        cache.value(),           static_cast<double>(measures.texturedDistance),
        walls.value(),           roofs.value(),
        subtypes[place.value()], textures.value()};
}

Result<TextureChoice> readTextureChoice(const QCommandLineParser &parser,
                                        const BuildingsMeasures &measures)
{
    TextureChoice choice;
    choice.files = parser.values(QStringLiteral("texture"));
    choice.templateFile = parser.value(QStringLiteral("textures"));
    choice.filter = parser.value(QStringLiteral("filter"));
    if (choice.files.contains(QString()) ||
        (choice.files.isEmpty() && choice.templateFile.isEmpty()))
        return usage(QStringLiteral("--texture and --textures need a value"));
    const Result<int> structure = readWord(parser, QStringLiteral("structure"), Structures);
    if (!structure)
        return structure.error();
    choice.structure = static_cast<buildings::DataStructure>(structure.value());
    const Result<buildings::TexturedLook> look = readLook(parser, measures);
    if (!look)
        return look.error();
    choice.look = look.value();

    const bool usesMap = choice.look.wallColor == QLatin1String(ColorMapWord) ||
                         choice.look.roofColor == QLatin1String(ColorMapWord);
    const bool hasImage = parser.isSet(QStringLiteral("image"));
    if (usesMap && !hasImage)
        return usage(QStringLiteral("colormap as a colour needs --image"));
    if (hasImage && !usesMap)
        return usage(QStringLiteral("--image colours textured buildings only with --wall-color "
                                    "colormap or --roof-color colormap"));
    return choice;
}

void addColoredOptions(QCommandLineParser &parser)
{
    parser.addOptions({
        {QStringLiteral("image"),
         QStringLiteral("Raster of one band that the buildings are coloured from: a file, or the "
                        "name of one of its subdatasets."),
         QStringLiteral("FILE")},
        {QStringLiteral("image-nodata"),
         QStringLiteral("Value of the image's pixels without a value, besides those that the file "
                        "states (default none)."),
         QStringLiteral("NUMBER")},
        {QStringLiteral("colormap"),
         QStringLiteral("Colour map: one of the installation's by its name, or a file (default: "
                        "the installation's first one)."),
         QStringLiteral("NAME|PATH")},
        {QStringLiteral("absolute"),
         QStringLiteral("Take the colour map's own values (default: it is stretched over the "
                        "image's least and greatest value).")},
        {QStringLiteral("color-ranges"),
         QStringLiteral("Colour ranges of values (default: colours between two values of the map "
                        "are interpolated).")},
        {QStringLiteral("mode"),
         QStringLiteral("Which of the values under a building colours it (default minimum)."),
         Reductions.join(QLatin1Char('|'))},
    });
}

void addTexturedOptions(QCommandLineParser &parser)
{
    parser.addOptions({
        {QStringLiteral("texture"),
         QStringLiteral("Image for the height above the ground that is given, or that it or its "
                        "name states. May be given several times."),
         QStringLiteral("FILE[=HEIGHT]")},
        {QStringLiteral("textures"),
         QStringLiteral("One image of a set; the others are found by it."),
         QStringLiteral("TEMPLATE")},
        {QStringLiteral("structure"),
         QStringLiteral("Where they are: in the template's folder (default), in the folders "
                        "beside it, or in the folders of the folders beside its parent."),
         Structures.join(QLatin1Char('|'))},
        {QStringLiteral("filter"),
         QStringLiteral("Of the set only images with this in their file name, folder, description "
                        "or height."),
         QStringLiteral("TEXT")},
        {QStringLiteral("texture-on"),
         QStringLiteral("Where the images go: roofs take the one nearest to their height, walls "
                        "have a band for each, storeys are floors at the images' heights (default "
                        "roofs)."),
         wordsOf(buildings::TextureModes).join(QLatin1Char('|'))},
        {QStringLiteral("wall-color"),
         QStringLiteral("Colour of walls, or colormap: from --image (default %1).").arg(WallColor),
         QStringLiteral("#RRGGBB|colormap")},
        {QStringLiteral("roof-color"),
         QStringLiteral("Colour of roofs, or colormap: from --image (default %1).").arg(RoofColor),
         QStringLiteral("#RRGGBB|colormap")},
        {QStringLiteral("edge-color"),
         QStringLiteral("Colour of edges (default %1).").arg(EdgeColor), QStringLiteral("#RRGGBB")},
        {QStringLiteral("force-edges"), QStringLiteral("Draw edges in any case.")},
        {QStringLiteral("complex-buildings"),
         QStringLiteral("Images on buildings with courtyards or many corners, too.")},
        {QStringLiteral("cache"),
         QStringLiteral("What the builder keeps of the finished buildings (default none)."),
         wordsOf(buildings::CacheModes).join(QLatin1Char('|'))},
        {QStringLiteral("delayed-write"), QStringLiteral("Write to the cache later, by numbers.")},
        {QStringLiteral("compression"),
         QStringLiteral("Compression of the images in graphics memory (default none)."),
         wordsOf(buildings::Compressions).join(QLatin1Char('|'))},
        {QStringLiteral("magnify"),
         QStringLiteral("How pixels are drawn from near: as squares (default), or blended."),
         wordsOf(buildings::MagFilters).join(QLatin1Char('|'))},
    });
}

} // namespace

void addBuildingsOptions(QCommandLineParser &parser)
{
    parser.addOptions({
        {{QStringLiteral("o"), QStringLiteral("output")},
         QStringLiteral("Layer file to write; the building document is written beside it as "
                        "OUT.texb, the legend of a colour map as NAME_gradient.png."),
         QStringLiteral("OUT.lay")},
        {QStringLiteral("dtm"),
         QStringLiteral("Terrain raster that the buildings stand on (default: the project's)."),
         QStringLiteral("FILE")},
        {QStringLiteral("dtm-nodata"),
         QStringLiteral("Value of the terrain where its height is not known (default: what the "
                        "file states)."),
         QStringLiteral("NUMBER")},
        {QStringLiteral("layer"),
         QStringLiteral("Layer of the vector file (default: the first one of polygons)."),
         QStringLiteral("NAME")},
        {QStringLiteral("height-field"),
         QStringLiteral("Field with the heights of the buildings (default: AGL, H, HEIGHT or "
                        "COLOR, else the second one)."),
         QStringLiteral("NAME")},
        {QStringLiteral("check-clockwise"),
         QStringLiteral("Have the directions of the outlines checked.")},
    });
    addNumberOptions(parser, numberOptions());
    addColoredOptions(parser);
    addTexturedOptions(parser);
}

Result<BuildingsRequest> readBuildingsOptions(const QCommandLineParser &parser)
{
    BuildingsRequest request;
    request.vector = parser.positionalArguments().value(0);
    request.output = parser.value(QStringLiteral("output"));
    if (request.output.isEmpty())
        return usage(QStringLiteral("no output file given (-o OUT.lay)"));
    request.layer = parser.value(QStringLiteral("layer"));
    request.heightField = parser.value(QStringLiteral("height-field"));
    request.terrain = parser.value(QStringLiteral("dtm"));
    if (const auto error = checkNoData(parser, QStringLiteral("dtm-nodata")))
        return *error;
    if (parser.isSet(QStringLiteral("dtm-nodata")))
        request.terrainNoData = parser.value(QStringLiteral("dtm-nodata"));
    BuildingsMeasures measures;
    if (const auto error = readNumberOptions(parser, numberOptions(), measures))
        return *error;
    request.footprints.extrudedVisibility = measures.distance;
    request.footprints.tileSize = measures.tileSize;
    request.footprints.skirtHeight = measures.skirt;
    request.footprints.checkClockwise = parser.isSet(QStringLiteral("check-clockwise"));

    if (const auto error = checkCompanions(parser))
        return *error;
    if (parser.isSet(QStringLiteral("image"))) {
        const Result<RasterColoring> image = readImage(parser);
        if (!image)
            return image.error();
        request.image = image.value();
    }
    if (parser.isSet(QStringLiteral("texture")) || parser.isSet(QStringLiteral("textures"))) {
        const Result<TextureChoice> textures = readTextureChoice(parser, measures);
        if (!textures)
            return textures.error();
        request.textures = textures.value();
    }
    return request;
}

} // namespace vlt::batch
