#include "batch/BuildingsOptions.h"

#include "batch/BuildingsHeightOptions.h"
#include "batch/BuildingsValues.h"
#include "contract/RasterColors.h"
#include "language/VltLanguageManager.h"

namespace vlt::batch {

namespace {

QList<QCommandLineOption> coloredOptions()
{
    return {
        {QStringLiteral("image"),
         dico_label("MESS_OPT_IMAGE", "Raster whose values color the buildings: a file, or the "
                                      "name of an image in a file; no picture of colors."),
         QStringLiteral("FILE")},
        {QStringLiteral("band"),
         dico_label("MESS_OPT_BAND", "Band of the raster, from 1 (default 1). Other programs that "
                                     "read the layer may take band 1 in any case."),
         QStringLiteral("INTEGER")},
        {QStringLiteral("image-nodata"),
         dico_label("MESS_OPT_IMAGE_NODATA", "Value of pixels without data, in addition to the "
                                             "value that the file declares (default none)."),
         QStringLiteral("NUMBER")},
        {QStringLiteral("color-field"),
         dico_label("MESS_OPT_COLOR_FIELD",
                    "Field of the vector file that colors the buildings in place of an image: "
                    "numbers through the color map, texts by distinct colors for the 12 most "
                    "frequent ones. Other programs that read the layer show plain buildings."),
         QStringLiteral("NAME")},
        {QStringLiteral("colormap"),
         dico_label("MESS_OPT_COLORMAP",
                    "Color map: one of the installation's by its name, or a file (default: "
                    "the installation's first one)."),
         QStringLiteral("NAME|PATH")},
        {QStringLiteral("absolute"),
         dico_label("MESS_OPT_ABSOLUTE",
                    "Use the color map's own values (default: the map is stretched between the "
                    "image's minimum and maximum value).")},
        {QStringLiteral("stretch"),
         dico_label("MESS_OPT_STRETCH",
                    "Values that the color map is stretched over: all of the image (raster, the "
                    "default), percentiles of them, those under the buildings, a stated range, or "
                    "all of the image and of others (with, may be given several times)."),
         QLatin1String(StretchWords)},
        {QStringLiteral("color-ranges"),
         dico_label("MESS_OPT_COLOR_RANGES",
                    "Use one color for each range of values (default: colors between two values of "
                    "the map are interpolated).")},
        {QStringLiteral("mode"),
         dico_label("MESS_OPT_MODE",
                    "Value under a building that determines its color (default minimum)."),
         reductionWords().join(QLatin1Char('|'))},
    };
}

QList<QCommandLineOption> texturedOptions()
{
    return {
        {QStringLiteral("texture"),
         dico_label("MESS_OPT_TEXTURE",
                    "Image for a height in metres above the ground: the given height, else the "
                    "height in the image's metadata or name. May be given several times."),
         QStringLiteral("FILE[=HEIGHT]")},
        {QStringLiteral("textures"),
         dico_label("MESS_OPT_TEXTURES",
                    "One image of a set; the others are those with the same suffix."),
         QStringLiteral("TEMPLATE")},
        {QStringLiteral("structure"),
         dico_label("MESS_OPT_STRUCTURE",
                    "Folders of the set: the image's folder (default), its sibling folders, or the "
                    "folders in the sibling folders of its parent."),
         choiceOf(StructureWords)},
        {QStringLiteral("filter"),
         dico_label("MESS_OPT_FILTER", "Use only images of the set with this text in their file "
                                       "name, folder, description or height."),
         QStringLiteral("TEXT")},
        {QStringLiteral("texture-on"),
         dico_label(
             "MESS_OPT_TEXTURE_ON",
             "Position of the images: roofs show the image with the nearest height, walls have a "
             "band for each image, storeys are floors at the images' heights (default roofs)."),
         choiceOf(contract::TextureModeWords)},
        {QStringLiteral("wall-color"),
         dico_label("MESS_OPT_WALL_COLOR",
                    "Color of walls without an image, or colormap: from --image (default "
                    "%1).")
             .arg(QLatin1String(contract::FirstWallColor)),
         QStringLiteral("RRGGBB|NAME|colormap")},
        {QStringLiteral("roof-color"),
         dico_label("MESS_OPT_ROOF_COLOR",
                    "Color of roofs without an image, or colormap: from --image (default "
                    "%1).")
             .arg(QLatin1String(contract::FirstRoofColor)),
         QStringLiteral("RRGGBB|NAME|colormap")},
        {QStringLiteral("edge-color"),
         dico_label("MESS_OPT_EDGE_COLOR", "Color of edges (default %1).")
             .arg(QLatin1String(contract::FirstEdgeColor)),
         QStringLiteral("RRGGBB|NAME")},
        {QStringLiteral("force-edges"), dico_label("MESS_OPT_FORCE_EDGES", "Always draw edges.")},
        {QStringLiteral("no-complex-buildings"),
         dico_label("MESS_OPT_NO_COMPLEX_BUILDINGS",
                    "No images on buildings with courtyards or many corners.")},
    };
}

/// How the images of buildings are kept in memory and drawn.
QList<QCommandLineOption> textureStorageOptions()
{
    return {
        {QStringLiteral("cache"),
         dico_label("MESS_OPT_CACHE", "Finished buildings that the builder stores (default none)."),
         choiceOf(contract::CacheModeWords)},
        {QStringLiteral("delayed-write"),
         dico_label("MESS_OPT_DELAYED_WRITE",
                    "Write to the cache only when --cache-capacity elements are waiting.")},
        {QStringLiteral("compression"),
         dico_label("MESS_OPT_COMPRESSION",
                    "Compression of the images in graphics memory (default none)."),
         choiceOf(contract::TextureCompressionWords)},
        {QStringLiteral("magnify"),
         dico_label("MESS_OPT_MAGNIFY",
                    "Drawing of pixels at a short distance: as squares (default), or blended."),
         choiceOf(contract::MagFilterWords)},
    };
}

} // namespace

const std::vector<NumberOption<BuildingsMeasures>> &buildingsNumbers()
{
    static const std::vector<NumberOption<BuildingsMeasures>> options = {
        {QStringLiteral("distance"),
         dico_label("MESS_OPT_DISTANCE",
                    "Maximum distance in metres at which the buildings are shown"),
         &BuildingsMeasures::distanceM, contract::ExtrudedVisibilityM},
        {QStringLiteral("tile-size"),
         dico_label("MESS_OPT_TILE_SIZE", "Side of the tiles of buildings in metres"),
         &BuildingsMeasures::tileSizeM, contract::TileSizeM},
        {QStringLiteral("skirt"),
         dico_label("MESS_OPT_SKIRT", "Depth of the walls below the ground in metres"),
         &BuildingsMeasures::skirtM, contract::SkirtHeightM},
        {QStringLiteral("textured-distance"),
         dico_label("MESS_OPT_TEXTURED_DISTANCE",
                    "Maximum distance in metres at which the images are shown"),
         &BuildingsMeasures::texturedDistanceM, contract::TexturedVisibilityM},
        {QStringLiteral("cache-capacity"),
         dico_label("MESS_OPT_CACHE_CAPACITY",
                    "Number of elements that wait before they are written to the cache"),
         &BuildingsMeasures::cacheCapacity, contract::CacheCapacity},
        {QStringLiteral("buffer"),
         dico_label(
             "MESS_OPT_BUFFER",
             "Distance in metres from a wall to the positions of its colors, outside the building"),
         &BuildingsMeasures::bufferM, contract::TextureBufferM, false},
        {QStringLiteral("dilatation"),
         dico_label("MESS_OPT_DILATATION",
                    "Number of pixels by which the colors of an image grow into empty pixels"),
         &BuildingsMeasures::dilatationPixels, contract::TextureDilatationPixels, false},
    };
    return options;
}

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

QStringList reductionWords()
{
    QStringList words = wordsOf(contract::ReductionWords);
    words.replaceInStrings(QStringLiteral("mostRepresented"), QStringLiteral("most-represented"));
    return words;
}

QList<QCommandLineOption> buildingsOptions()
{
    const QList<QCommandLineOption> inputs = {
        {{QStringLiteral("o"), QStringLiteral("output")},
         dico_label("MESS_OPT_TOWN_OUTPUT",
                    "Layer file to write; the building document is written beside it as OUT.texb, "
                    "and the legend of a color map as NAME_gradient.png."),
         QStringLiteral("OUT.lay")},
        {QStringLiteral("dtm"),
         dico_label("MESS_OPT_DTM", "Terrain raster under the buildings (default: the project's)."),
         QStringLiteral("FILE")},
        {QStringLiteral("dtm-nodata"),
         dico_label("MESS_OPT_DTM_NODATA", "Value of the terrain for unknown heights (default: the "
                                           "value that the file declares)."),
         QStringLiteral("NUMBER")},
        {QStringLiteral("layer"),
         dico_label("MESS_OPT_VECTOR_LAYER",
                    "Layer of the vector file (default: the first one of polygons)."),
         QStringLiteral("NAME")},
        {QStringLiteral("height-field"),
         dico_label("MESS_OPT_HEIGHT_FIELD",
                    "Field with the heights of the buildings (default: AGL, H, HEIGHT or "
                    "COLOR, else the second one, else the likeliest by its name)."),
         QStringLiteral("NAME")},
        {QStringLiteral("check-clockwise"),
         dico_label("MESS_OPT_CHECK_CLOCKWISE", "Check the directions of the outlines.")},
    };
    return inputs + heightOptions() + numberOptionList(buildingsNumbers()) + coloredOptions() +
           texturedOptions() + textureStorageOptions() + valuesOptions();
}

} // namespace vlt::batch
