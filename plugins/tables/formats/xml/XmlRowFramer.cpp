#include "plugins/tables/formats/xml/XmlRowFramer.h"

#include "plugins/tables/bytes/Refusal.h"
#include "plugins/tables/cells/ByteScan.h"

#include <charconv>
#include <limits>

namespace vlt::driver {

namespace {

constexpr int64_t LastRowNumber = std::numeric_limits<int32_t>::max();

} // namespace

XmlRowFramer::XmlRowFramer(std::unique_ptr<ByteSource> source, const Names &names,
                           bool insideContainer, int64_t firstRow, uint64_t streamOffset)
    : m_input(std::move(source))
    , m_names(names)
    , m_windowOffset(streamOffset)
    , m_at(m_input.begin())
    , m_nextRow(firstRow)
    , m_entered(insideContainer)
{}

bool XmlRowFramer::readTag(XmlTag &tag)
{
    while (!nextTag(m_at, m_input.end(), tag)) {
        refuseEndlessMarkup(tag.begin, m_input.end());
        m_windowOffset += static_cast<uint64_t>(tag.begin - m_input.begin());
        const bool more = m_input.more(tag.begin);
        m_at = more ? m_input.begin() : m_input.end();
        if (!more)
            return false;
    }
    m_at = tag.end;
    return true;
}

bool XmlRowFramer::enterContainer()
{
    XmlTag tag;
    while (readTag(tag)) {
        if (tag.closes(m_names.sheet)) // the following rows belong to another sheet
            return false;
        if (tag.opens(m_names.container)) {
            m_entered = true;
            return tag.kind == XmlTag::Kind::Open;
        }
    }
    return false;
}

bool XmlRowFramer::advance()
{
    if (m_done || (!m_entered && !enterContainer())) {
        m_done = true;
        return false;
    }
    XmlTag tag;
    while (readTag(tag)) {
        if (tag.closes(m_names.container)) {
            m_containerEnd = m_windowOffset + static_cast<uint64_t>(m_at - m_input.begin());
            m_done = true;
            return false;
        }
        if (!tag.opens(m_names.row))
            continue;
        int64_t number = m_nextRow;
        if (const auto text = attribute(tag.attributes, m_names.number)) {
            int64_t said = 0;
            std::from_chars(text->data(), text->data() + text->size(), said);
            // Numbers of rows have to increase, because they identify the features.
            if (said >= m_nextRow && said <= LastRowNumber)
                number = said;
        }
        const auto hidden = attribute(tag.attributes, m_names.hidden);
        m_isHidden = hidden && (*hidden == "1" || *hidden == "true");
        m_rowNumber = number;
        m_nextRow = number + 1;
        if (tag.kind == XmlTag::Kind::Empty)
            continue;
        findRowEnd(tag);
        return true;
    }
    throw RefusedFile(Refusal::Malformed, "MESS_TAB_SHEET_CUT");
}

void XmlRowFramer::findRowEnd(const XmlTag &tag)
{
    if (m_closing.empty() || m_prefix != tag.prefix) {
        m_prefix = tag.prefix;
        m_closing = "</" + m_prefix + std::string(m_names.row);
    }
    m_rowPosition = m_windowOffset + static_cast<uint64_t>(tag.begin - m_input.begin());
    const char *row = tag.begin;
    const std::size_t openingSize = static_cast<std::size_t>(tag.end - tag.begin);
    const char *from = tag.end;
    for (;;) {
        // "/r" is less frequent than "</", which every cell contains
        const char *found = findText(from, m_input.end(), std::string_view(m_closing).substr(1));
        const char *after = found + m_closing.size() - 1;
        if (found != m_input.end() && after < m_input.end()) {
            from = after;
            if (found[-1] != '<' || (*after != '>' && *after != ' ' && *after != '\n' &&
                                     *after != '\r' && *after != '\t'))
                continue; // </rowBreaks>
            m_inside = row + openingSize;
            m_rowEnd = found - 1;
            m_at = after; // before the ">", because text between tags is skipped
            return;
        }
        const std::size_t seen = static_cast<std::size_t>(m_input.end() - row);
        m_windowOffset += static_cast<uint64_t>(row - m_input.begin());
        if (!m_input.more(row))
            throw RefusedFile(Refusal::Malformed, "MESS_TAB_FILE_CUT_IN_ROW",
                              {std::to_string(m_rowNumber)});
        row = m_input.begin();
        const std::size_t overlap = m_closing.size();
        from = row + std::max(openingSize, seen > overlap ? seen - overlap : 0);
    }
}

std::string_view XmlRowFramer::inside() const
{
    return {m_inside, static_cast<std::size_t>(m_rowEnd - m_inside)};
}

} // namespace vlt::driver
