#include "buildings/BuildingDocument.h"

#include "text/Numbers.h"

namespace vlt::buildings {

// Fragments are filled by one call of QString::arg() with all their values: a value that holds
// "%1" itself stays as it is.
namespace {

const QString EndTag = QStringLiteral("</veltaroTexturedBuildings>\n");

QString trueOrFalse(bool value)
{
    return value ? QStringLiteral("true") : QStringLiteral("false");
}

QString elevationElement(const TerrainSettings &terrain)
{
    return QStringLiteral("  <elevation \n"
                          "    source=\"dtm\"\n"
                          "    filename=\"%1\"\n"
                          "    nodata=\"%2\"\n"
                          "  />\n")
        .arg(terrain.file, terrain.noData);
}

QString coloredVectorElement(const FootprintSettings &footprints, const QString &wallColor)
{
    return QStringLiteral("  <vector \n"
                          "    filename=\"%1\"\n"
                          "    layer=\"%2\"\n"
                          "    hfield=\"%3\"\n"
                          "    tileSize=\"%4\"\n"
                          "    extrudedVisibility=\"%5\"\n"
                          "    wallColor=\"%6\"\n"
                          "    skirtHeight=\"%7\"\n"
                          "    checkClockwise=\"%8\"\n"
                          "  />\n")
        .arg(footprints.file, footprints.layer, footprints.heightField,
             text::g6(footprints.tileSize), text::g6(footprints.extrudedVisibility), wallColor,
             text::g6(footprints.skirtHeight), trueOrFalse(footprints.checkClockwise));
}

QString fullVectorElement(const Texb &document)
{
    const FootprintSettings &footprints = document.footprints;
    return QStringLiteral("  <vector \n"
                          "    filename=\"%1\"\n"
                          "    layer=\"%2\"\n"
                          "    hfield=\"%3\"\n"
                          "    tileSize=\"%4\"\n"
                          "    extrudedVisibility=\"%5\"\n"
                          "    texturedVisibility=\"%6\"\n"
                          "    wallColor=\"%7\"\n"
                          "    roofColor=\"%8\"\n"
                          "    skirtHeight=\"%9\"\n")
               .arg(footprints.file, footprints.layer, footprints.heightField,
                    text::g6(footprints.tileSize), text::g6(footprints.extrudedVisibility),
                    text::g6(document.texturedVisibility), document.wallColor, document.roofColor,
                    text::g6(footprints.skirtHeight)) +
           QStringLiteral("    checkClockwise=\"%1\"\n")
               .arg(trueOrFalse(footprints.checkClockwise)) +
           QStringLiteral("  />\n");
}

QString cacheAttributes(const std::optional<CacheSettings> &cache)
{
    if (!cache)
        return QStringLiteral("  cache=\"none\">\n");
    return QStringLiteral("  cache=\"%1\" \n"
                          "  delayedCacheWrite=\"%2\" \n"
                          "  delayedCacheWriteCapacity=\"%3\">\n")
        .arg(cache->mode, trueOrFalse(cache->delayedWrite), QString::number(cache->capacity));
}

QString textureElement(const FileEntry &image)
{
    return QStringLiteral("    <texture \n"
                          "      filename=\"%1\"\n"
                          "      height=\"%2\"\n"
                          "    />\n")
        .arg(image.file.filePath(), text::g6(image.height));
}

QString texturesElement(const TexbTextures &textures)
{
    QString element =
        QStringLiteral("  <textures \n"
                       "    mode=\"%1\"\n"
                       "    edgeColor=\"%2\"\n"
                       "    forceEdgeCreation=\"%3\"\n"
                       "    processComplexBuildings=\"%4\"\n")
            .arg(textures.mode, textures.edgeColor, trueOrFalse(textures.forceEdgeCreation),
                 trueOrFalse(textures.processComplexBuildings));
    if (textures.compression) // three blanks: readers know the line so
        element += QStringLiteral("   compression=\"%1\"\n").arg(*textures.compression);
    if (textures.bufferValue)
        element += QStringLiteral("    bufferValue=\"%1\"\n").arg(text::g6(*textures.bufferValue));
    if (textures.dilatationValue)
        element +=
            QStringLiteral("    dilatationValue=\"%1\"\n").arg(text::g6(*textures.dilatationValue));
    element +=
        QStringLiteral("    magFilter=\"%1\"\n").arg(textures.magFilter) + QStringLiteral("  >\n");
    for (const FileEntry &image : textures.images) {
        if (image.used)
            element += textureElement(image);
    }
    return element + QStringLiteral("  </textures>\n");
}

contract::RasterColors rasterColors(const RasterColoring &coloring)
{
    return {coloring.rasterFile.toStdString(),
            coloring.colorMap.toStdString(),
            coloring.reduction,
            coloring.stretched,
            coloring.interpolated,
            coloring.noData.toStdString()};
}

} // namespace

QString imageColor(const RasterColoring &coloring)
{
    return QString::fromStdString(contract::imageColorText(rasterColors(coloring)));
}

QString colorMapColor(const RasterColoring &coloring)
{
    return QString::fromStdString(contract::colorMapColorText(rasterColors(coloring)));
}

QString writeColoredTexbDocument(const ColoredTexb &document)
{
    return QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\"?>"
                          "<veltaroTexturedBuildings cache=\"none\">\n") +
           coloredVectorElement(document.footprints, imageColor(document.walls)) +
           elevationElement(document.terrain) + EndTag;
}

QString writeTexbDocument(const Texb &document)
{
    return QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\"?>"
                          "<veltaroTexturedBuildings \n") +
           cacheAttributes(document.cache) + fullVectorElement(document) +
           elevationElement(document.terrain) +
           (document.textures ? texturesElement(*document.textures) : QString()) + EndTag;
}

} // namespace vlt::buildings
