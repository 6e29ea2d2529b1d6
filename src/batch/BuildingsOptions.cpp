#include "batch/BuildingsOptions.h"

#include "contract/RasterColors.h"
#include "language/VltLanguageManager.h"

namespace vlt::batch {

namespace {

/// Words as the name of an option's value: "one|two".
template<std::size_t N>
QString choiceOf(const char *const (&words)[N])
{
    return wordsOf(words).join(QLatin1Char('|'));
}

QList<QCommandLineOption> coloredOptions()
{
    return {
        {QStringLiteral("image"),
         dico_label("MESS_OPT_IMAGE",
                    "Raster of one band that the buildings are colored from: a file, or the "
                    "name of one of its subdatasets."),
         QStringLiteral("FILE")},
        {QStringLiteral("image-nodata"),
         dico_label("MESS_OPT_IMAGE_NODATA",
                    "Value of the image's pixels without a value, besides those that the file "
                    "states (default none)."),
         QStringLiteral("NUMBER")},
        {QStringLiteral("colormap"),
         dico_label("MESS_OPT_COLORMAP",
                    "Color map: one of the installation's by its name, or a file (default: "
                    "the installation's first one)."),
         QStringLiteral("NAME|PATH")},
        {QStringLiteral("absolute"),
         dico_label("MESS_OPT_ABSOLUTE",
                    "Take the color map's own values (default: it is stretched over the "
                    "image's least and greatest value).")},
        {QStringLiteral("color-ranges"),
         dico_label("MESS_OPT_COLOR_RANGES",
                    "Color ranges of values (default: colors between two values of the map "
                    "are interpolated).")},
        {QStringLiteral("mode"),
         dico_label("MESS_OPT_MODE",
                    "Which of the values under a building colors it (default minimum)."),
         reductionWords().join(QLatin1Char('|'))},
    };
}

QList<QCommandLineOption> texturedOptions()
{
    return {
        {QStringLiteral("texture"),
         dico_label("MESS_OPT_TEXTURE",
                    "Image for the height above the ground that is given, or that it or its "
                    "name states. May be given several times."),
         QStringLiteral("FILE[=HEIGHT]")},
        {QStringLiteral("textures"),
         dico_label("MESS_OPT_TEXTURES", "One image of a set; the others are found by it."),
         QStringLiteral("TEMPLATE")},
        {QStringLiteral("structure"),
         dico_label("MESS_OPT_STRUCTURE",
                    "Where they are: in the template's folder (default), in the folders "
                    "beside it, or in the folders of the folders beside its parent."),
         choiceOf(StructureWords)},
        {QStringLiteral("filter"),
         dico_label("MESS_OPT_FILTER",
                    "Of the set only images with this in their file name, folder, description "
                    "or height."),
         QStringLiteral("TEXT")},
        {QStringLiteral("texture-on"),
         dico_label("MESS_OPT_TEXTURE_ON",
                    "Where the images go: roofs take the one nearest to their height, walls "
                    "have a band for each, storeys are floors at the images' heights (default "
                    "roofs)."),
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
        {QStringLiteral("force-edges"),
         dico_label("MESS_OPT_FORCE_EDGES", "Draw edges in any case.")},
        {QStringLiteral("no-complex-buildings"),
         dico_label("MESS_OPT_NO_COMPLEX_BUILDINGS",
                    "No images on buildings with courtyards or many corners.")},
        {QStringLiteral("cache"),
         dico_label("MESS_OPT_CACHE",
                    "What the builder keeps of the finished buildings (default none)."),
         choiceOf(contract::CacheModeWords)},
        {QStringLiteral("delayed-write"),
         dico_label("MESS_OPT_DELAYED_WRITE",
                    "Write to the cache only when --cache-capacity elements wait.")},
        {QStringLiteral("compression"),
         dico_label("MESS_OPT_COMPRESSION",
                    "Compression of the images in graphics memory (default none)."),
         choiceOf(contract::TextureCompressionWords)},
        {QStringLiteral("magnify"),
         dico_label("MESS_OPT_MAGNIFY",
                    "How pixels are drawn from near: as squares (default), or blended."),
         choiceOf(contract::MagFilterWords)},
    };
}

} // namespace

const std::vector<NumberOption<BuildingsMeasures>> &buildingsNumbers()
{
    static const std::vector<NumberOption<BuildingsMeasures>> options = {
        {QStringLiteral("distance"),
         dico_label("MESS_OPT_DISTANCE", "Distance in metres up to which the buildings are shown"),
         &BuildingsMeasures::distanceM, contract::ExtrudedVisibilityM},
        {QStringLiteral("tile-size"),
         dico_label("MESS_OPT_TILE_SIZE",
                    "Side in metres of the tiles that the buildings are shared out to"),
         &BuildingsMeasures::tileSizeM, contract::TileSizeM},
        {QStringLiteral("skirt"),
         dico_label("MESS_OPT_SKIRT", "Metres that walls go down below the ground"),
         &BuildingsMeasures::skirtM, contract::SkirtHeightM},
        {QStringLiteral("textured-distance"),
         dico_label("MESS_OPT_TEXTURED_DISTANCE",
                    "Distance in metres up to which the images are shown"),
         &BuildingsMeasures::texturedDistanceM, contract::TexturedVisibilityM},
        {QStringLiteral("cache-capacity"),
         dico_label("MESS_OPT_CACHE_CAPACITY",
                    "Elements that wait before they are written to the cache"),
         &BuildingsMeasures::cacheCapacity, contract::CacheCapacity},
        {QStringLiteral("buffer"),
         dico_label("MESS_OPT_BUFFER", "Metres outside a wall at which its colors are taken"),
         &BuildingsMeasures::bufferM, contract::TextureBufferM, false},
        {QStringLiteral("dilatation"),
         dico_label("MESS_OPT_DILATATION",
                    "Pixels by which the colors of an image grow into empty ones"),
         &BuildingsMeasures::dilatationPixels, contract::TextureDilatationPixels, false},
    };
    return options;
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
                    "the legend of a color map as NAME_gradient.png."),
         QStringLiteral("OUT.lay")},
        {QStringLiteral("dtm"),
         dico_label("MESS_OPT_DTM",
                    "Terrain raster that the buildings stand on (default: the project's)."),
         QStringLiteral("FILE")},
        {QStringLiteral("dtm-nodata"),
         dico_label("MESS_OPT_DTM_NODATA",
                    "Value of the terrain where its height is not known (default: what the "
                    "file states)."),
         QStringLiteral("NUMBER")},
        {QStringLiteral("layer"),
         dico_label("MESS_OPT_VECTOR_LAYER",
                    "Layer of the vector file (default: the first one of polygons)."),
         QStringLiteral("NAME")},
        {QStringLiteral("height-field"),
         dico_label("MESS_OPT_HEIGHT_FIELD",
                    "Field with the heights of the buildings (default: AGL, H, HEIGHT or "
                    "COLOR, else the second one)."),
         QStringLiteral("NAME")},
        {QStringLiteral("check-clockwise"),
         dico_label("MESS_OPT_CHECK_CLOCKWISE", "Have the directions of the outlines checked.")},
    };
    return inputs + numberOptionList(buildingsNumbers()) + coloredOptions() + texturedOptions();
}

} // namespace vlt::batch
