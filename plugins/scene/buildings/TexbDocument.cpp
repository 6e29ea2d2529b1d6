#include "plugins/scene/buildings/TexbDocument.h"

#include "contract/Words.h"
#include "plugins/scene/reading/BadLayer.h"
#include "plugins/scene/reading/LayerText.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <charconv>
#include <cmath>
#include <utility>

namespace vlt::scene {

namespace {

using namespace contract;

constexpr std::string_view Blanks = " \t\r\n";
constexpr auto None = std::string_view::npos;
/// Limit for hostile input, in metres or pixels. Larger numbers would not change the scene.
constexpr double MaxNumber = 1e9;
constexpr std::size_t MaxShown = 40; ///< characters of a wrong value in a message

std::string_view withoutBlanks(std::string_view text)
{
    return text.substr(std::min(text.find_first_not_of(Blanks), text.size()));
}

/// The name at the start of a text; empty if there is none.
std::string_view nameAt(std::string_view text)
{
    std::size_t length = 0;
    while (length < text.size() &&
           (std::isalnum(static_cast<unsigned char>(text[length])) || text[length] == '_' ||
            text[length] == '-' || text[length] == ':' || text[length] == '.'))
        ++length;
    return text.substr(0, length);
}

/// Reads `name = "`. `text` is the rest after the quotation mark then. Returns an empty name, and
/// leaves `text` unchanged, if the text starts differently.
std::string_view takeAttributeName(std::string_view &text, char &quote)
{
    std::string_view rest = withoutBlanks(text);
    const std::string_view name = nameAt(rest);
    rest = withoutBlanks(rest.substr(name.size()));
    if (name.empty() || !rest.starts_with('='))
        return {};
    rest = withoutBlanks(rest.substr(1));
    if (!rest.starts_with('"') && !rest.starts_with('\''))
        return {};
    quote = rest.front();
    text = rest.substr(1);
    return name;
}

bool endsElement(std::string_view text)
{
    text = withoutBlanks(text);
    if (text.starts_with("/>"))
        text.remove_prefix(2);
    else if (text.starts_with('>'))
        text.remove_prefix(1);
    else
        return false;
    text = withoutBlanks(text);
    return text.empty() || text.starts_with('<');
}

bool goesOn(std::string_view text)
{
    char quote = 0;
    return !text.empty() && Blanks.find(text.front()) != None &&
           !takeAttributeName(text, quote).empty();
}

using Attributes = std::vector<std::pair<std::string, std::string>>;

/// Reads the attributes of an element. `text` is the rest from the end of the element then.
Attributes takeAttributes(std::string_view &text, References references)
{
    Attributes attributes;
    char quote = 0;
    for (std::string_view name = takeAttributeName(text, quote); !name.empty();
         name = takeAttributeName(text, quote)) {
        std::size_t end = text.find(quote);
        while (end != None && !endsElement(text.substr(end + 1)) && !goesOn(text.substr(end + 1)))
            end = text.find(quote, end + 1);
        if (end == None)
            throw BadLayer("MESS_SCENE_NO_VALUE_END", {name});
        attributes.emplace_back(name, unescaped(text.substr(0, end), references));
        text.remove_prefix(end + 1);
    }
    return attributes;
}

std::string textOf(const Attributes &attributes, std::string_view name)
{
    for (const auto &[known, value] : attributes) {
        if (known == name)
            return value;
    }
    return {};
}

/// The number in a text; nothing if it is none, or is not finite.
template<typename Number>
std::optional<Number> numberIn(std::string_view text)
{
    text = withoutBlanks(text);
    Number number = 0;
    const char *last = text.data() + text.size();
    const auto [end, fault] = std::from_chars(text.data(), last, number);
    const bool isWhole = withoutBlanks({end, static_cast<std::size_t>(last - end)}).empty();
    if (fault != std::errc() || !isWhole || !std::isfinite(static_cast<double>(number)))
        return std::nullopt;
    return number;
}

double numberOf(const Attributes &attributes, std::string_view name, double absent,
                double minimum = 0)
{
    const std::string text = textOf(attributes, name);
    if (withoutBlanks(text).empty())
        return absent;
    const std::optional<double> number = numberIn<double>(text);
    if (!number || *number < minimum)
        throw BadLayer(minimum < 0 ? contract::SceneTextId("MESS_SCENE_NO_NUMBER")
                                   : contract::SceneTextId("MESS_SCENE_BAD_NUMBER"),
                       {name, text.substr(0, MaxShown)});
    return std::min(*number, MaxNumber);
}

/// The number of an attribute that a user chooses in a range; nothing if there is no attribute.
std::optional<double> chosenOf(const Attributes &attributes, std::string_view name,
                               const Range &range)
{
    const std::string text = textOf(attributes, name);
    if (withoutBlanks(text).empty())
        return std::nullopt;
    const std::optional<double> number = numberIn<double>(text);
    const auto shown = [](double limit) {
        std::array<char, 32> digits{};
        return std::string(digits.data(), std::to_chars(digits.begin(), digits.end(), limit).ptr);
    };
    if (!number || !range.contains(*number))
        throw BadLayer("MESS_SCENE_OUT_OF_RANGE", {name, text.substr(0, MaxShown),
                                                   shown(range.minimum), shown(range.maximum)});
    return number;
}

/// The value for the word of an attribute; `absent` if there is no attribute.
template<typename Value, std::size_t N>
Value wordIn(const Attributes &attributes, std::string_view name, const char *const (&words)[N],
             Value absent)
{
    const std::string text = textOf(attributes, name);
    const std::optional<Value> value = valueOf<Value>(words, text);
    if (!value && !text.empty())
        throw BadLayer("MESS_SCENE_BAD_WORD", {name, text.substr(0, MaxShown)});
    return value.value_or(absent);
}

bool isTrue(const Attributes &attributes, std::string_view name)
{
    const std::string text = textOf(attributes, name);
    return isSameWord(text, texb::True) || text == "1";
}

void readFootprints(const Attributes &attributes, BuildingFootprints &footprints)
{
    footprints.file = textOf(attributes, texb::FileName);
    footprints.layer = textOf(attributes, texb::Layer);
    footprints.heightField = textOf(attributes, texb::HeightField);
    for (const auto &[name, number] :
         {std::pair(texb::TileSize, &footprints.tileSizeM),
          std::pair(texb::ExtrudedVisibility, &footprints.extrudedVisibilityM),
          std::pair(texb::TexturedVisibility, &footprints.texturedVisibilityM),
          std::pair(texb::SkirtHeight, &footprints.skirtHeightM)})
        *number = numberOf(attributes, name, *number);
    footprints.wallColor = textOf(attributes, texb::WallColor);
    footprints.roofColor = textOf(attributes, texb::RoofColor);
    footprints.checkClockwise = isTrue(attributes, texb::CheckClockwise);
}

BuildingHeights heightsOf(const Attributes &attributes)
{
    BuildingHeights heights;
    heights.unit = wordIn(attributes, texb::Unit, HeightUnitWords, heights.unit);
    heights.factor = chosenOf(attributes, texb::Factor, HeightFactor).value_or(heights.factor);
    heights.levelHeightM =
        chosenOf(attributes, texb::LevelHeight, LevelHeightM).value_or(heights.levelHeightM);
    heights.elseField = textOf(attributes, texb::ElseField);
    heights.elseUnit = wordIn(attributes, texb::ElseUnit, HeightUnitWords, heights.elseUnit);
    heights.defaultM = chosenOf(attributes, texb::DefaultHeight, DefaultHeightM);
    heights.reference =
        wordIn(attributes, texb::Reference, HeightReferenceWords, heights.reference);
    heights.base = wordIn(attributes, texb::Base, BaseRuleWords, heights.base);
    heights.baseField = textOf(attributes, texb::BaseField);
    heights.bottomField = textOf(attributes, texb::BottomField);
    return heights;
}

BuildingColors colorsOf(const Attributes &attributes)
{
    BuildingColors colors;
    colors.band =
        static_cast<int>(chosenOf(attributes, texb::Band, RasterBand).value_or(colors.band));
    const auto minimum = numberIn<double>(textOf(attributes, texb::Minimum));
    const auto maximum = numberIn<double>(textOf(attributes, texb::Maximum));
    const auto size = numberIn<std::int64_t>(textOf(attributes, texb::RasterSize));
    const auto time = numberIn<std::int64_t>(textOf(attributes, texb::RasterTime));
    if (minimum && maximum && size && time) // else they are computed
        colors.range = {*minimum, *maximum, *size, *time};
    colors.field = textOf(attributes, texb::ColorField);
    colors.map = textOf(attributes, texb::ColorMap);
    colors.coloring = wordIn(attributes, texb::Mode, FieldColoringWords, colors.coloring);
    return colors;
}

TextureMode modeNamed(const std::string &name)
{
    const auto mode = valueOf<TextureMode>(TextureModeWords, name);
    if (!mode)
        throw BadLayer("MESS_SCENE_BAD_MODE", {name.substr(0, MaxShown)});
    return *mode;
}

/// The compression for a name. An unknown name means Arb, the compression that the graphics card
/// selects.
TextureCompression compressionNamed(const std::string &name)
{
    return name.empty() ? TextureCompression::None
                        : valueOf<TextureCompression>(TextureCompressionWords, name)
                              .value_or(TextureCompression::Arb);
}

BuildingTextures texturesOf(const Attributes &attributes)
{
    BuildingTextures textures;
    textures.mode = modeNamed(textOf(attributes, texb::Mode));
    textures.edgeColor = textOf(attributes, texb::EdgeColor);
    textures.forceEdgeCreation = isTrue(attributes, texb::ForceEdgeCreation);
    textures.processComplexBuildings = isTrue(attributes, texb::ProcessComplexBuildings);
    textures.compression = compressionNamed(textOf(attributes, texb::Compression));
    textures.bufferM = numberOf(attributes, texb::Buffer, 0);
    textures.dilatationPixels = numberOf(attributes, texb::Dilatation, 0);
    textures.magFilter =
        valueOf<MagFilter>(MagFilterWords, textOf(attributes, texb::MagnificationFilter))
            .value_or(MagFilter::None);
    return textures;
}

void takeElement(BuildingDocument &document, std::string_view name, const Attributes &attributes)
{
    if (name == texb::VectorElement)
        readFootprints(attributes, document.footprints);
    else if (name == texb::HeightsElement) {
        document.footprints.heights = heightsOf(attributes);
        document.footprints.where = texb::percentDecoded(textOf(attributes, texb::Where));
    } else if (name == texb::ColorsElement)
        document.colors = colorsOf(attributes);
    else if (name == texb::ElevationElement)
        document.terrain = {textOf(attributes, texb::FileName), textOf(attributes, texb::NoData)};
    else if (name == texb::TexturesElement)
        document.textures = texturesOf(attributes);
    else if (name == texb::TextureElement && document.textures)
        document.textures->images.push_back({textOf(attributes, texb::FileName),
                                             numberOf(attributes, texb::Height, 0, -MaxNumber)});
}

/// Reads up to the next start tag and returns its name; empty after the last one.
std::string_view takeElementName(std::string_view &text)
{
    for (std::size_t at = text.find('<'); at != None; at = text.find('<')) {
        text.remove_prefix(at);
        if (text.starts_with("<!--")) {
            text.remove_prefix(std::min(text.find("-->"), text.size()));
            continue;
        }
        text.remove_prefix(1);
        const std::string_view name = nameAt(text);
        text.remove_prefix(name.size());
        if (!name.empty())
            return name;
    }
    return {};
}

void check(const BuildingFootprints &footprints)
{
    if (footprints.file.empty())
        throw BadLayer("MESS_SCENE_UNNAMED_FOOTPRINTS");
    if (footprints.heightField.empty())
        throw BadLayer("MESS_SCENE_UNNAMED_FIELD");
    if (footprints.tileSizeM <= 0)
        throw BadLayer("MESS_SCENE_NO_TILES");
}

} // namespace

BuildingDocument parseTexbDocument(std::string_view text)
{
    std::string_view name = takeElementName(text);
    if (name != texb::RootElement)
        throw BadLayer("MESS_SCENE_OTHER_DOCUMENT");
    // A document with one attribute per line is not escaped: "&#233;" may be a part of a path then.
    const bool isPlain = text.find("<vector \n") != None;
    const References references = isPlain ? References::Kept : References::Taken;
    BuildingDocument document;
    while (!name.empty()) {
        takeElement(document, name, takeAttributes(text, references));
        name = takeElementName(text);
    }
    check(document.footprints);
    return document;
}

BuildingDocument readTexbDocument(const std::string &path)
{
    return parseTexbDocument(readLayerText(path));
}

} // namespace vlt::scene
