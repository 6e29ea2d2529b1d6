#include "plugins/tables/formats/xlsx/SharedStrings.h"

#include "plugins/tables/bytes/ChunkedInput.h"
#include "plugins/tables/bytes/Refusal.h"
#include "plugins/tables/cells/ByteScan.h"
#include "plugins/tables/cells/Cell.h"
#include "plugins/tables/formats/xml/XmlScan.h"

#include <algorithm>
#include <charconv>

namespace vlt::driver {

namespace {

constexpr std::size_t EscapeSize = 7; ///< of "_xHHHH_"
/// Maximum size of an element in bytes; a longer one is cut.
constexpr std::size_t MaxItemSize = std::size_t{16} << 20;

/// Replaces each _xHHHH_ by its control character.
void replaceEscapes(std::string &text)
{
    std::size_t at = text.find("_x");
    if (at == std::string::npos)
        return;
    std::string plain;
    std::size_t done = 0;
    for (; at != std::string::npos; at = text.find("_x", std::max(at + 1, done))) {
        unsigned code = 0;
        if (at + EscapeSize > text.size() || text[at + EscapeSize - 1] != '_')
            continue;
        const char *digits = text.data() + at + 2;
        const auto [end, error] = std::from_chars(digits, digits + 4, code, 16);
        if (error != std::errc() || end != digits + 4 || code >= 0x80)
            continue;
        plain.append(text, done, at - done);
        plain += static_cast<char>(code);
        done = at + EscapeSize;
    }
    text = plain.append(text, done);
}

} // namespace

std::string richText(std::string_view markup)
{
    std::string text;
    XmlCursor cursor(markup);
    XmlTag tag;
    int phonetic = 0;
    const char *open = nullptr;
    while (cursor.next(tag)) {
        if (tag.opens("rPh") && tag.kind == XmlTag::Kind::Open)
            ++phonetic;
        else if (tag.closes("rPh"))
            --phonetic;
        else if (tag.name == "t" && tag.kind == XmlTag::Kind::Open)
            open = tag.end;
        else if (tag.kind == XmlTag::Kind::CharacterData && open && phonetic == 0) {
            text += decodeXml({open, static_cast<std::size_t>(tag.begin - open)});
            text += tag.attributes;
            open = tag.end;
        } else if (tag.closes("t") && open) {
            if (phonetic == 0)
                text += decodeXml({open, static_cast<std::size_t>(tag.begin - open)});
            open = nullptr;
        }
    }
    if (open && phonetic == 0) {
        const std::string_view rest(open, static_cast<std::size_t>(markup.end() - open));
        text += decodeXml(rest.substr(0, rest.find('<')));
    }
    replaceEscapes(text);
    return text;
}

/// Reads the si elements of the part.
class SharedStrings::Stream
{
public:
    explicit Stream(std::unique_ptr<ByteSource> source)
        : m_input(std::move(source))
        , m_at(m_input.begin())
    {}

    /// Gets the markup inside the next si element; false at the end.
    bool next(std::string_view &inside)
    {
        XmlTag tag;
        for (;;) {
            while (!nextTag(m_at, m_input.end(), tag)) {
                refuseEndlessMarkup(tag.begin, m_input.end());
                const bool more = m_input.more(tag.begin);
                m_at = more ? m_input.begin() : m_input.end();
                if (!more)
                    return false;
            }
            m_at = tag.end;
            if (tag.opens("si"))
                break;
        }
        if (tag.kind == XmlTag::Kind::Empty) {
            inside = {};
            return true;
        }
        return findEnd(tag, inside);
    }

private:
    bool findEnd(const XmlTag &tag, std::string_view &inside)
    {
        if (m_closing.empty())
            m_closing = "/" + std::string(tag.prefix) + "si>";
        const char *begin = tag.end;
        const char *from = begin;
        m_start.clear();
        for (;;) {
            const char *found = findText(from, m_input.end(), m_closing);
            if (found != m_input.end()) {
                inside = m_start;
                if (m_start.empty())
                    inside = {begin, static_cast<std::size_t>(found - 1 - begin)};
                m_at = found + m_closing.size();
                return true;
            }
            if (m_start.empty() && static_cast<std::size_t>(m_input.end() - begin) > MaxItemSize)
                m_start.assign(begin, MaxItemSize);
            if (!m_start.empty()) // only the end of the element is needed
                begin = m_input.end() - m_closing.size();
            const std::size_t seen = static_cast<std::size_t>(m_input.end() - begin);
            if (!m_input.more(begin))
                throw RefusedFile(Refusal::Malformed, "MESS_TAB_TEXTS_CUT");
            begin = m_input.begin();
            from = begin + (seen > m_closing.size() ? seen - m_closing.size() : 0);
        }
    }

    ChunkedInput m_input;
    const char *m_at;
    std::string m_closing;
    std::string m_start; ///< start of an element that is too long to be kept
};

SharedStrings::SharedStrings(std::shared_ptr<const ZipArchive> archive, std::string member)
    : m_archive(std::move(archive))
    , m_member(std::move(member))
{}

SharedStrings::~SharedStrings() = default;

void SharedStrings::keepOnly(std::vector<uint64_t> wanted)
{
    m_wanted = std::move(wanted);
    m_stream.reset();
    m_texts.clear();
    m_count = 0;
    m_ended = false;
}

/// Keeps one character more than the maximum of a cell, so that the text is reported as cut.
void SharedStrings::keepText(std::string_view text)
{
    m_holdZeros = m_holdZeros || text.find('\0') != std::string_view::npos;
    m_texts.add(firstCharacters(text, MaxTextSize + 1));
}

void SharedStrings::readUpTo(uint64_t index)
{
    if (!m_stream && !m_ended) {
        if (m_member.empty())
            m_ended = true;
        else
            m_stream = std::make_unique<Stream>(m_archive->open(m_member));
    }
    std::string_view inside;
    while (!m_ended && m_count <= index) {
        if (!m_stream->next(inside)) {
            m_ended = true;
            m_stream.reset();
            break;
        }
        const uint64_t number = m_count++;
        if (!m_wanted.empty()) {
            if (m_texts.size() == m_wanted.size()) {
                m_ended = true; // the remaining texts are not wanted
                m_stream.reset();
                break;
            }
            if (m_wanted[m_texts.size()] != number)
                continue;
        }
        // nearly all elements hold only <t>text</t>
        constexpr std::string_view Open = "<t>";
        constexpr std::string_view Close = "</t>";
        const bool plain = inside.starts_with(Open) && inside.ends_with(Close);
        const std::string_view text =
            plain ? inside.substr(Open.size(), inside.size() - Open.size() - Close.size()) : inside;
        if (plain && text.find_first_of("<&\r") == std::string_view::npos &&
            text.find("_x") == std::string_view::npos)
            keepText(text);
        else
            keepText(richText(inside));
    }
}

std::optional<std::string_view> SharedStrings::at(uint64_t index)
{
    std::size_t position = static_cast<std::size_t>(index);
    if (!m_wanted.empty()) {
        const auto found = std::lower_bound(m_wanted.begin(), m_wanted.end(), index);
        if (found == m_wanted.end() || *found != index)
            return std::nullopt;
        position = static_cast<std::size_t>(found - m_wanted.begin());
    }
    if (position >= m_texts.size())
        readUpTo(index);
    if (position >= m_texts.size())
        return std::nullopt;
    return m_texts[position];
}

} // namespace vlt::driver
