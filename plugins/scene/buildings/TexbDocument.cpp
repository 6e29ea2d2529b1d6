#include "plugins/scene/buildings/TexbDocument.h"

#include "plugins/scene/reading/BadLayer.h"
#include "plugins/scene/reading/LayerText.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cmath>
#include <utility>

namespace vlt::scene {

namespace {

constexpr std::string_view Blanks = " \t\r\n";
constexpr auto None = std::string_view::npos;
constexpr double Most = 1e9; ///< metres or pixels: more makes no difference to what is seen

std::string_view withoutBlanks(std::string_view text)
{
    return text.substr(std::min(text.find_first_not_of(Blanks), text.size()));
}

std::string lowered(std::string_view text)
{
    std::string low(text);
    std::transform(low.begin(), low.end(), low.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return low;
}

/// The name at the start of a text; empty where there is none.
std::string_view nameAt(std::string_view text)
{
    std::size_t length = 0;
    while (length < text.size() &&
           (std::isalnum(static_cast<unsigned char>(text[length])) || text[length] == '_' ||
            text[length] == '-' || text[length] == ':' || text[length] == '.'))
        ++length;
    return text.substr(0, length);
}

/// Takes `name = "` and moves behind the quotation mark; an empty name where it is none.
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

/// Takes the attributes of an element; `text` moves to what ends it.
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
            throw BadLayer("the value of " + std::string(name) + " does not end");
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

double numberOf(const Attributes &attributes, std::string_view name, double usual, double least = 0)
{
    const std::string text = textOf(attributes, name);
    const std::string_view digits = withoutBlanks(text);
    if (digits.empty())
        return usual;
    double number = 0;
    const char *last = digits.data() + digits.size();
    const auto [end, fault] = std::from_chars(digits.data(), last, number);
    const bool isWhole = withoutBlanks({end, static_cast<std::size_t>(last - end)}).empty();
    if (fault != std::errc() || !isWhole || !std::isfinite(number) || number < least)
        throw BadLayer("the " + std::string(name) + " \"" + text.substr(0, 40) + "\" is no number" +
                       (least < 0 ? "" : " of zero or more"));
    return std::min(number, Most);
}

bool isTrue(const Attributes &attributes, std::string_view name)
{
    const std::string text = lowered(textOf(attributes, name));
    return text == "true" || text == "1";
}

void takeVector(TexbDocument &document, const Attributes &attributes)
{
    document.vectorFile = textOf(attributes, "filename");
    document.layer = textOf(attributes, "layer");
    document.heightField = textOf(attributes, "hfield");
    document.tileSizeM = numberOf(attributes, "tileSize", document.tileSizeM);
    document.extrudedVisibilityM =
        numberOf(attributes, "extrudedVisibility", document.extrudedVisibilityM);
    document.texturedVisibilityM =
        numberOf(attributes, "texturedVisibility", document.texturedVisibilityM);
    document.wallColor = textOf(attributes, "wallColor");
    document.roofColor = textOf(attributes, "roofColor");
    document.skirtHeightM = numberOf(attributes, "skirtHeight", document.skirtHeightM);
    document.checkClockwise = isTrue(attributes, "checkClockwise");
}

TextureMode modeNamed(const std::string &name)
{
    const std::string low = lowered(name);
    if (low == "roofs")
        return TextureMode::Roofs;
    if (low == "walls")
        return TextureMode::Walls;
    if (low == "storeys")
        return TextureMode::Storeys;
    throw BadLayer("the texture mode \"" + name.substr(0, 40) +
                   "\" is none of roofs, walls and storeys");
}

TexbTextures texturesOf(const Attributes &attributes)
{
    TexbTextures textures;
    textures.mode = modeNamed(textOf(attributes, "mode"));
    textures.edgeColor = textOf(attributes, "edgeColor");
    textures.forceEdgeCreation = isTrue(attributes, "forceEdgeCreation");
    textures.processComplexBuildings = isTrue(attributes, "processComplexBuildings");
    const std::string compression = lowered(textOf(attributes, "compression"));
    textures.isCompressed = !compression.empty() && compression != "none";
    textures.bufferM = numberOf(attributes, "bufferValue", 0);
    textures.dilatationPixels = numberOf(attributes, "dilatationValue", 0);
    textures.isSmooth = lowered(textOf(attributes, "magFilter")) == "linear";
    return textures;
}

void takeElement(TexbDocument &document, std::string_view name, const Attributes &attributes)
{
    if (name == "vector")
        takeVector(document, attributes);
    else if (name == "elevation") {
        document.terrainFile = textOf(attributes, "filename");
        document.terrainNoData = textOf(attributes, "nodata");
    } else if (name == "textures")
        document.textures = texturesOf(attributes);
    else if (name == "texture" && document.textures)
        document.textures->images.push_back(
            {textOf(attributes, "filename"), numberOf(attributes, "height", 0, -Most)});
}

/// Moves to the next start of an element and takes its name; an empty one behind the last.
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

void check(const TexbDocument &document)
{
    if (document.vectorFile.empty())
        throw BadLayer("the document names no file of footprints");
    if (document.heightField.empty())
        throw BadLayer("the document names no field of heights");
    if (document.tileSizeM <= 0)
        throw BadLayer("the tileSize is not more than zero");
}

} // namespace

TexbDocument parseTexbDocument(std::string_view text)
{
    std::string_view name = takeElementName(text);
    if (name != "veltaroTexturedBuildings")
        throw BadLayer("it is no building document: it does not start with the element "
                       "veltaroTexturedBuildings");
    // whoever writes documents line by line escapes nothing: a path may hold "&#233;" then
    const bool isPlain = text.find("<vector \n") != None;
    const References references = isPlain ? References::Kept : References::Taken;
    TexbDocument document;
    while (!name.empty()) {
        takeElement(document, name, takeAttributes(text, references));
        name = takeElementName(text);
    }
    check(document);
    return document;
}

TexbDocument readTexbDocument(const std::string &path)
{
    return parseTexbDocument(readLayerText(path));
}

} // namespace vlt::scene
