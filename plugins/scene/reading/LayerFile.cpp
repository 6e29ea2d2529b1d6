#include "plugins/scene/reading/LayerFile.h"

#include "contract/LayerElements.h"
#include "plugins/scene/reading/BadLayer.h"
#include "plugins/scene/reading/LayerText.h"

#include <array>
#include <filesystem>
#include <utility>

namespace vlt::scene {

namespace {

constexpr std::string_view Blanks = " \t\r\n";
constexpr std::string_view SectionStart = "<![CDATA[";
constexpr std::string_view SectionEnd = "]]>";
constexpr auto None = std::string_view::npos;
constexpr std::size_t MaxSourceSize = 64 << 10;

std::string_view trimmed(std::string_view text)
{
    const std::size_t begin = text.find_first_not_of(Blanks);
    if (begin == None)
        return {};
    return text.substr(begin, text.find_last_not_of(Blanks) + 1 - begin);
}

bool startsRoot(std::string_view text)
{
    return text.starts_with('<') && text.substr(1).starts_with(contract::layer::RootElement);
}

bool startsAfterBlanks(std::string_view text, std::string_view start)
{
    const std::size_t begin = text.find_first_not_of(Blanks);
    return begin != None && text.substr(begin).starts_with(start);
}

/// Reads the value of an element whose start tag has been read. `rest` is the text after its end
/// tag then.
std::string takeValue(std::string_view &rest, const std::string &name)
{
    const std::string endTag = "</" + name;
    const std::size_t begin = std::min(rest.find_first_not_of(Blanks), rest.size());
    const bool isSection = rest.substr(begin).starts_with(SectionStart);
    std::size_t end = rest.find(endTag);
    std::string value;
    if (isSection) {
        const std::string_view inside = rest.substr(begin + SectionStart.size());
        std::size_t close = inside.find(SectionEnd);
        while (close != None &&
               !startsAfterBlanks(inside.substr(close + SectionEnd.size()), endTag))
            close = inside.find(SectionEnd, close + 1);
        if (close == None)
            throw BadLayer("MESS_SCENE_NO_END", {name});
        value = trimmed(inside.substr(0, close));
        end = begin + SectionStart.size() + close;
    } else if (end != None)
        value = unescaped(trimmed(rest.substr(0, end)));
    if (end == None)
        throw BadLayer("MESS_SCENE_NO_END", {name});
    rest.remove_prefix(std::min(rest.find('>', rest.find(endTag, end)), rest.size()));
    return value;
}

std::string attribute(std::string_view tag, std::string_view name)
{
    for (const char quote : {'"', '\''}) {
        const std::string start = ' ' + std::string(name) + '=' + quote;
        const std::size_t at = tag.find(start);
        if (at != None) {
            tag.remove_prefix(at + start.size());
            return std::string(tag.substr(0, tag.find(quote)));
        }
    }
    return {};
}

std::string_view withoutComment(std::string_view text)
{
    const std::size_t end = text.find("-->");
    return end == None ? std::string_view() : text.substr(end);
}

LayerKind kindNamed(const std::string &name)
{
    constexpr std::array<std::pair<std::string_view, LayerKind>, 3> Kinds = {
        {{contract::layer::Sites, LayerKind::Sites},
         {contract::layer::Links, LayerKind::Links},
         {contract::layer::Buildings, LayerKind::Buildings}}};
    for (const auto &[known, kind] : Kinds) {
        if (name == known)
            return kind;
    }
    if (name.empty())
        throw BadLayer("MESS_SCENE_NO_KIND");
    throw BadLayer("MESS_SCENE_BAD_KIND", {name});
}

} // namespace

LayerFile parseLayerFile(std::string_view text)
{
    std::string_view rest = text;
    std::size_t root = rest.find('<');
    while (root != None && !startsRoot(rest.substr(root))) {
        rest.remove_prefix(root);
        rest = rest.starts_with("<!--") ? withoutComment(rest) : rest.substr(1);
        root = rest.find('<');
    }
    if (root == None)
        throw BadLayer("MESS_SCENE_NO_ROOT");
    rest.remove_prefix(root);

    LayerFile file;
    file.kind = kindNamed(attribute(rest.substr(0, rest.find('>')), contract::layer::Kind));
    const std::array<std::pair<std::string_view, std::string *>, 5> known = {
        {{contract::layer::Title, &file.title},
         {contract::layer::Source, &file.source},
         {contract::layer::SourceLayer, &file.layer},
         {contract::layer::EndLayer, &file.endLayer},
         {contract::layer::NameField, &file.siteField}}};
    rest.remove_prefix(1);
    for (std::size_t at = rest.find('<'); at != None; at = rest.find('<')) {
        rest.remove_prefix(at + 1);
        if (rest.starts_with("!--")) {
            rest = withoutComment(rest);
            continue;
        }
        const std::size_t tagEnd = rest.find_first_of("<>");
        if (tagEnd == None)
            break;
        const std::string_view tag = rest.substr(0, tagEnd);
        const std::string name(tag.substr(0, tag.find_first_of(" \t\r\n/")));
        if (name.empty() || rest[tagEnd] == '<' || rest[tagEnd - 1] == '/')
            continue; // an end tag, an empty element or a stray "<"
        rest.remove_prefix(tagEnd + 1);
        const std::string value = takeValue(rest, name);
        for (const auto &[element, member] : known) {
            if (name == element)
                *member = value;
        }
    }
    if (file.source.empty())
        throw BadLayer("MESS_SCENE_NO_SOURCE");
    if (file.source.size() > MaxSourceSize)
        throw BadLayer("MESS_SCENE_LONG_SOURCE");
    return file;
}

LayerFile readLayerFile(const std::string &path)
{
    LayerFile file = parseLayerFile(readLayerText(path));
    if (file.title.empty())
        file.title = std::filesystem::path(path).stem().string();
    return file;
}

} // namespace vlt::scene
