#include "buildings/DocumentWriter.h"

#include "contract/Words.h"
#include "text/Numbers.h"

namespace vlt::buildings {

namespace {

using namespace contract;

enum class Variant { Colored, Full };

constexpr char Header[] = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>";

std::string number(double value)
{
    return text::g6(value).toStdString();
}

const char *trueOrFalse(bool value)
{
    return value ? texb::True : texb::False;
}

std::string attribute(const char *name, const std::string &value)
{
    return std::string(name).append("=\"").append(value).append("\"");
}

/// A line of an element below the root.
std::string line(const char *name, const std::string &value)
{
    return "    " + attribute(name, value) + '\n';
}

std::string startOf(const char *element)
{
    return std::string("<").append(element).append(" \n");
}

std::string endTag(const char *element)
{
    return std::string("</").append(element).append(">\n");
}

std::string rootStart(const BuildingCache &cache, Variant variant)
{
    const std::string mode = attribute(texb::Cache, wordOf(CacheModeWords, cache.mode));
    if (variant == Variant::Colored) // one line, without line feeds between attributes
        return std::string("<").append(texb::RootElement) + ' ' + mode + ">\n";
    std::string start = startOf(texb::RootElement) + "  " + mode;
    if (cache.mode != CacheMode::None)
        start += " \n  " + attribute(texb::DelayedCacheWrite, trueOrFalse(cache.delayedWrite)) +
                 " \n  " +
                 attribute(texb::DelayedCacheWriteCapacity, std::to_string(cache.capacity));
    return start + ">\n";
}

std::string vectorElement(const BuildingFootprints &footprints, Variant variant)
{
    const bool isFull = variant == Variant::Full;
    std::string element = "  " + startOf(texb::VectorElement);
    element += line(texb::FileName, footprints.file);
    element += line(texb::Layer, footprints.layer);
    element += line(texb::HeightField, footprints.heightField);
    element += line(texb::TileSize, number(footprints.tileSizeM));
    element += line(texb::ExtrudedVisibility, number(footprints.extrudedVisibilityM));
    if (isFull)
        element += line(texb::TexturedVisibility, number(footprints.texturedVisibilityM));
    element += line(texb::WallColor, footprints.wallColor);
    if (isFull)
        element += line(texb::RoofColor, footprints.roofColor);
    element += line(texb::SkirtHeight, number(footprints.skirtHeightM));
    element += line(texb::CheckClockwise, trueOrFalse(footprints.checkClockwise));
    return element + "  />\n";
}

std::string elevationElement(const BuildingTerrain &terrain)
{
    return "  " + startOf(texb::ElevationElement) + line(texb::Source, texb::TerrainSource) +
           line(texb::FileName, terrain.file) + line(texb::NoData, terrain.noData) + "  />\n";
}

std::string textureElement(const BuildingImage &image)
{
    return "    " + startOf(texb::TextureElement) + "  " + line(texb::FileName, image.path) + "  " +
           line(texb::Height, number(image.heightM)) + "    />\n";
}

std::string texturesElement(const BuildingTextures &textures)
{
    std::string element = "  " + startOf(texb::TexturesElement);
    element += line(texb::Mode, wordOf(TextureModeWords, textures.mode));
    element += line(texb::EdgeColor, textures.edgeColor);
    element += line(texb::ForceEdgeCreation, trueOrFalse(textures.forceEdgeCreation));
    element += line(texb::ProcessComplexBuildings, trueOrFalse(textures.processComplexBuildings));
    if (textures.compression != TextureCompression::None) // readers expect three blanks
        element +=
            "   " +
            attribute(texb::Compression, wordOf(TextureCompressionWords, textures.compression)) +
            '\n';
    if (textures.bufferM)
        element += line(texb::Buffer, number(*textures.bufferM));
    if (textures.dilatationPixels)
        element += line(texb::Dilatation, number(*textures.dilatationPixels));
    element += line(texb::MagnificationFilter, wordOf(MagFilterWords, textures.magFilter));
    element += "  >\n";
    for (const BuildingImage &image : textures.images)
        element += textureElement(image);
    return element + "  " + endTag(texb::TexturesElement);
}

} // namespace

QString writeColoredTexbDocument(const BuildingDocument &document)
{
    return QString::fromStdString(Header + rootStart({}, Variant::Colored) +
                                  vectorElement(document.footprints, Variant::Colored) +
                                  elevationElement(document.terrain) + endTag(texb::RootElement));
}

QString writeTexbDocument(const BuildingDocument &document)
{
    return QString::fromStdString(
        Header + rootStart(document.cache, Variant::Full) +
        vectorElement(document.footprints, Variant::Full) + elevationElement(document.terrain) +
        (document.textures ? texturesElement(*document.textures) : std::string()) +
        endTag(texb::RootElement));
}

} // namespace vlt::buildings
