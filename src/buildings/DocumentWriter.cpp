#include "buildings/DocumentWriter.h"

#include "contract/Words.h"
#include "text/Numbers.h"

#include <array>
#include <charconv>

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

/// The attributes of an element that not all readers know: only those that are not the default.
class OptionalElement
{
public:
    explicit OptionalElement(const char *name) : m_name(name) {}

    void add(const char *name, const std::string &value, const std::string &ifAbsent = {})
    {
        if (value != ifAbsent)
            m_lines += line(name, value);
    }
    template<typename Value, std::size_t N>
    void add(const char *name, const char *const (&words)[N], Value value, Value ifAbsent)
    {
        add(name, wordOf(words, value), wordOf(words, ifAbsent));
    }

    std::string text() const
    {
        return m_lines.empty() ? std::string() : "  " + startOf(m_name) + m_lines + "  />\n";
    }

private:
    const char *m_name;
    std::string m_lines;
};

/// The shortest text for a number that is read as the same one.
template<typename Number>
std::string exact(Number value)
{
    std::array<char, 32> digits{};
    return {digits.data(), std::to_chars(digits.begin(), digits.end(), value).ptr};
}

std::string heightsElement(const BuildingFootprints &footprints)
{
    const BuildingHeights &heights = footprints.heights;
    const BuildingHeights absent;
    OptionalElement element(texb::HeightsElement);
    element.add(texb::Unit, HeightUnitWords, heights.unit, absent.unit);
    element.add(texb::Factor, exact(heights.factor), exact(absent.factor));
    element.add(texb::LevelHeight, exact(heights.levelHeightM), exact(absent.levelHeightM));
    element.add(texb::ElseField, heights.elseField);
    element.add(texb::ElseUnit, HeightUnitWords, heights.elseUnit, absent.elseUnit);
    element.add(texb::DefaultHeight, heights.defaultM ? exact(*heights.defaultM) : "");
    element.add(texb::Reference, HeightReferenceWords, heights.reference, absent.reference);
    element.add(texb::Base, BaseRuleWords, heights.base, absent.base);
    element.add(texb::BaseField, heights.baseField);
    element.add(texb::BottomField, heights.bottomField);
    element.add(texb::Where, texb::percentEncoded(footprints.where));
    return element.text();
}

std::string colorsElement(const BuildingColors &colors)
{
    const BuildingColors absent;
    OptionalElement element(texb::ColorsElement);
    element.add(texb::Band, exact(colors.band), exact(absent.band));
    if (colors.range) {
        element.add(texb::Minimum, exact(colors.range->minimum));
        element.add(texb::Maximum, exact(colors.range->maximum));
        element.add(texb::RasterSize, exact(colors.range->sizeBytes));
        element.add(texb::RasterTime, exact(colors.range->timeS));
    }
    element.add(texb::ColorField, colors.field);
    element.add(texb::ColorMap, colors.map);
    element.add(texb::Mode, FieldColoringWords, colors.coloring, absent.coloring);
    return element.text();
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
                                  elevationElement(document.terrain) +
                                  heightsElement(document.footprints) +
                                  colorsElement(document.colors) + endTag(texb::RootElement));
}

QString writeTexbDocument(const BuildingDocument &document)
{
    return QString::fromStdString(
        Header + rootStart(document.cache, Variant::Full) +
        vectorElement(document.footprints, Variant::Full) + elevationElement(document.terrain) +
        heightsElement(document.footprints) + colorsElement(document.colors) +
        (document.textures ? texturesElement(*document.textures) : std::string()) +
        endTag(texb::RootElement));
}

} // namespace vlt::buildings
