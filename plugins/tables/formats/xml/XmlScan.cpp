#include "plugins/tables/formats/xml/XmlScan.h"

#include "plugins/tables/bytes/Refusal.h"
#include "plugins/tables/cells/ByteScan.h"
#include "plugins/tables/cells/Utf8.h"

#include <charconv>
#include <cstdint>
#include <cstring>

namespace vlt::driver {

namespace {

constexpr uint32_t LastCodePoint = 0x10FFFF;
constexpr std::size_t MaxEntitySize = 16; ///< bytes: "&#x0010FFFF;" with some more zeros

bool isBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

/// Appends the character of &name; or returns false if the name is not known.
bool appendEntity(std::string &to, std::string_view name)
{
    static constexpr struct
    {
        std::string_view name;
        char character;
    } Known[] = {{"amp", '&'}, {"lt", '<'}, {"gt", '>'}, {"quot", '"'}, {"apos", '\''}};
    for (const auto &entity : Known) {
        if (entity.name == name) {
            to += entity.character;
            return true;
        }
    }
    if (name.size() < 2 || name[0] != '#')
        return false;
    const bool hex = name[1] == 'x' || name[1] == 'X';
    const char *digits = name.data() + (hex ? 2 : 1);
    const char *end = name.data() + name.size();
    uint32_t code = 0;
    const auto [stop, error] = std::from_chars(digits, end, code, hex ? 16 : 10);
    if (error != std::errc() || stop != end || code == 0 || code > LastCodePoint)
        return false;
    appendUtf8(to, code);
    return true;
}

/// Reads a piece that starts with "<!" or "<?"; false if it is incomplete.
bool readSpecial(const char *end, XmlTag &tag)
{
    const std::string_view rest(tag.begin, static_cast<std::size_t>(end - tag.begin));
    std::string_view closing = ">";
    if (rest.starts_with("<!--"))
        closing = "-->";
    else if (rest.starts_with("<![CDATA["))
        closing = "]]>";
    else if (rest.starts_with("<?"))
        closing = "?>";
    else if (rest.starts_with("<!DOCTYPE"))
        throw RefusedFile(Refusal::DocumentType, "MESS_TAB_DOCUMENT_TYPE");
    const std::size_t stop = rest.find(closing, 2);
    if (stop == std::string_view::npos || (rest.size() < 9 && rest.starts_with("<!")))
        return false;
    tag.kind = rest.starts_with("<![CDATA[") ? XmlTag::Kind::CharacterData : XmlTag::Kind::Other;
    if (tag.kind == XmlTag::Kind::CharacterData)
        tag.attributes = rest.substr(9, stop - 9);
    tag.end = tag.begin + stop + closing.size();
    return true;
}

} // namespace

bool nextTag(const char *at, const char *end, XmlTag &tag)
{
    const void *found =
        at < end ? std::memchr(at, '<', static_cast<std::size_t>(end - at)) : nullptr;
    tag.begin = found ? static_cast<const char *>(found) : end;
    const char *p = tag.begin + 1;
    if (!found || p >= end)
        return false;
    tag.prefix = tag.name = tag.attributes = {};
    if (*p == '!' || *p == '?')
        return readSpecial(end, tag);
    tag.kind = XmlTag::Kind::Open;
    if (*p == '/') {
        tag.kind = XmlTag::Kind::Close;
        ++p;
    }
    const char *name = p;
    const char *local = p;
    while (p < end && !isBlank(*p) && *p != '>' && *p != '/') {
        if (*p == ':')
            local = p + 1;
        ++p;
    }
    tag.prefix = {name, static_cast<std::size_t>(local - name)};
    tag.name = {local, static_cast<std::size_t>(p - local)};
    const char *attributes = p;
    char quote = 0;
    for (; p < end && (quote || *p != '>'); ++p) {
        if (quote ? *p == quote : (*p == '"' || *p == '\''))
            quote = quote ? '\0' : *p;
    }
    if (p >= end)
        return false;
    tag.attributes = {attributes, static_cast<std::size_t>(p - attributes)};
    if (tag.kind == XmlTag::Kind::Open && p[-1] == '/') {
        tag.kind = XmlTag::Kind::Empty;
        if (!tag.attributes.empty())
            tag.attributes.remove_suffix(1);
    }
    tag.end = p + 1;
    return true;
}

void refuseEndlessMarkup(const char *begin, const char *end)
{
    if (static_cast<std::size_t>(end - begin) > MaxMarkupSize)
        throw RefusedFile(Refusal::Malformed, "MESS_TAB_LONG_TAG");
}

std::optional<std::string_view> attribute(std::string_view attributes, std::string_view localName)
{
    const char *p = attributes.data();
    const char *end = p + attributes.size();
    for (;;) {
        while (p < end && isBlank(*p))
            ++p;
        const char *local = p;
        while (p < end && *p != '=') {
            if (*p == ':')
                local = p + 1;
            ++p;
        }
        std::string_view name(local, static_cast<std::size_t>(p - local));
        while (!name.empty() && isBlank(name.back()))
            name.remove_suffix(1);
        while (p < end && *p != '"' && *p != '\'')
            ++p;
        if (p >= end)
            return std::nullopt;
        const char *value = p + 1;
        const void *close = std::memchr(value, *p, static_cast<std::size_t>(end - value));
        if (!close)
            return std::nullopt;
        p = static_cast<const char *>(close);
        if (name == localName)
            return std::string_view(value, static_cast<std::size_t>(p - value));
        ++p;
    }
}

bool needsDecoding(std::string_view text)
{
    return text.find_first_of("&\r") != std::string_view::npos;
}

std::string decodeXml(std::string_view text)
{
    std::string result;
    result.reserve(text.size());
    for (std::size_t at = 0; at < text.size(); ++at) {
        const std::size_t length =
            text[at] == '&' ? text.substr(at, MaxEntitySize).find(';') : std::string_view::npos;
        if (length != std::string_view::npos &&
            appendEntity(result, text.substr(at + 1, length - 1)))
            at += length;
        else if (text[at] == '\r') {
            if (at + 1 == text.size() || text[at + 1] != '\n')
                result += '\n';
        } else
            result += text[at];
    }
    return result;
}

bool XmlCursor::next(XmlTag &tag)
{
    if (!nextTag(m_at, m_end, tag))
        return false;
    m_at = tag.end;
    return true;
}

} // namespace vlt::driver
