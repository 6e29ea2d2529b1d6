#include "batch/BuildingsOptions.h"

#include "buildings/BuildingLayerFiles.h"

namespace vlt::batch {

namespace {

/// Words as a value's name.
template<std::size_t N>
QString choiceOf(const char *const (&words)[N])
{
    return wordsOf(words).join(QLatin1Char('|'));
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
         choiceOf(ReductionWords)},
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
         choiceOf(StructureWords)},
        {QStringLiteral("filter"),
         QStringLiteral("Of the set only images with this in their file name, folder, description "
                        "or height."),
         QStringLiteral("TEXT")},
        {QStringLiteral("texture-on"),
         QStringLiteral("Where the images go: roofs take the one nearest to their height, walls "
                        "have a band for each, storeys are floors at the images' heights (default "
                        "roofs)."),
         choiceOf(buildings::TextureModes)},
        {QStringLiteral("wall-color"),
         QStringLiteral("Colour of walls without an image, or colormap: from --image (default "
                        "%1).")
             .arg(QLatin1String(WallColor)),
         QStringLiteral("RRGGBB|NAME|colormap")},
        {QStringLiteral("roof-color"),
         QStringLiteral("Colour of roofs without an image, or colormap: from --image (default "
                        "%1).")
             .arg(QLatin1String(RoofColor)),
         QStringLiteral("RRGGBB|NAME|colormap")},
        {QStringLiteral("edge-color"),
         QStringLiteral("Colour of edges (default %1).").arg(QLatin1String(EdgeColor)),
         QStringLiteral("RRGGBB|NAME")},
        {QStringLiteral("force-edges"), QStringLiteral("Draw edges in any case.")},
        {QStringLiteral("no-complex-buildings"),
         QStringLiteral("No images on buildings with courtyards or many corners.")},
        {QStringLiteral("cache"),
         QStringLiteral("What the builder keeps of the finished buildings (default none)."),
         choiceOf(buildings::CacheModes)},
        {QStringLiteral("delayed-write"), QStringLiteral("Write to the cache later, by numbers.")},
        {QStringLiteral("compression"),
         QStringLiteral("Compression of the images in graphics memory (default none)."),
         choiceOf(buildings::Compressions)},
        {QStringLiteral("magnify"),
         QStringLiteral("How pixels are drawn from near: as squares (default), or blended."),
         choiceOf(buildings::MagFilters)},
    });
}

} // namespace

const std::vector<NumberOption<BuildingsMeasures>> &buildingsNumbers()
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
         QStringLiteral("Metres outside a wall at which its colours are taken"),
         &BuildingsMeasures::buffer,
         {0, 1000},
         false},
        {QStringLiteral("dilatation"),
         QStringLiteral("Pixels by which the colours of an image grow into empty ones"),
         &BuildingsMeasures::dilatation,
         {1, 100},
         false},
    };
    return options;
}

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
    addNumberOptions(parser, buildingsNumbers());
    addColoredOptions(parser);
    addTexturedOptions(parser);
}

} // namespace vlt::batch
