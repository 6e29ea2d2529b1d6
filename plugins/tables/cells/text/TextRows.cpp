#include "cells/text/TextRows.h"

#include "cells/ByteScan.h"

#include <algorithm>
#include <cstring>

namespace vlt::tables {

namespace {

/// A quoted field this long was never meant to be one.
constexpr std::ptrdiff_t LongestQuoted = std::ptrdiff_t{8} << 20;

const char *find(const char *begin, const char *end, char wanted)
{
    const void *found =
        begin < end ? std::memchr(begin, wanted, static_cast<size_t>(end - begin)) : nullptr;
    return found ? static_cast<const char *>(found) : end;
}

/// Whether the field is anything but blanks.
bool isFilled(std::string_view field)
{
    return !field.empty() &&
           (static_cast<unsigned char>(field[0]) - 0x21U < 0x5EU || !trimmed(field).empty());
}

} // namespace

TextRows::TextRows(std::unique_ptr<ByteSource> stream, char delimiter, int64_t firstRow,
                   uint64_t position)
    : m_input(std::move(stream))
    , m_delimiter(delimiter)
    , m_windowPosition(position)
    , m_number(firstRow - 1)
{
    m_row = m_rowEnd = m_next = m_input.begin();
}

/// Appends to the window, keeping the current row.
bool TextRows::more()
{
    const uint64_t dropped = static_cast<uint64_t>(m_row - m_input.begin());
    if (m_atEnd || !m_input.more(m_row)) {
        m_atEnd = true;
        return false;
    }
    m_windowPosition += dropped;
    m_row = m_input.begin();
    return true;
}

bool TextRows::advance()
{
    m_row = m_next;
    if (m_row == m_input.end() && !more())
        return false;
    ++m_number;
    return findRowEnd();
}

/// The place of the mark that closes the quoted field starting at `field`, or null when none does.
/// The window may grow and move; `field` is then m_row plus its old distance.
const char *TextRows::closingQuote(const char *field)
{
    const std::ptrdiff_t start = field - m_row;
    std::ptrdiff_t at = start + 1;
    for (;;) {
        const char *mark = find(m_row + at, m_input.end(), '"');
        if (mark == m_input.end() || mark + 1 == m_input.end()) {
            at = mark - m_row;
            if (at - start > LongestQuoted || !more())
                return mark == m_input.end() ? nullptr : mark;
            continue;
        }
        if (mark[1] != '"')
            return mark;
        at = mark + 2 - m_row;
    }
}

bool TextRows::findRowEnd()
{
    std::ptrdiff_t at = 0;
    for (;;) {
        const char *found = findAnyOf(m_row + at, m_input.end(), '\n', '\r', '"');
        at = found - m_row;
        const bool returnAtEdge = found + 1 == m_input.end() && *found == '\r';
        if (found == m_input.end() || returnAtEdge) {
            if (more())
                continue;
            m_rowEnd = m_row + at;
            m_next = m_input.end();
            return true;
        }
        if (*found != '"') {
            m_rowEnd = found;
            m_next = found + (*found == '\r' && found[1] == '\n' ? 2 : 1);
            return true;
        }
        const bool opens = at == 0 || found[-1] == m_delimiter;
        const char *close = opens ? closingQuote(found) : nullptr;
        at = close ? close + 1 - m_row : at + 1;
    }
}

/// Reads the field at `at`; returns where it ends: at a delimiter or the row's end. Without a row
/// to keep the text, doubled quotes stay doubled.
const char *TextRows::readField(const char *at, std::string_view &text, Row *row) const
{
    if (at < m_rowEnd && *at == '"') {
        bool doubled = false;
        const char *mark = at;
        while ((mark = find(mark + 1, m_rowEnd, '"')) != m_rowEnd && mark + 1 < m_rowEnd &&
               mark[1] == '"') {
            doubled = true;
            ++mark;
        }
        if (mark != m_rowEnd) {
            const char *end = find(mark + 1, m_rowEnd, m_delimiter);
            text = {at + 1, static_cast<size_t>(mark - at - 1)};
            if (row && (doubled || end != mark + 1)) {
                std::string whole;
                for (size_t i = 0; i < text.size(); ++i) {
                    whole += text[i];
                    i += text[i] == '"' ? 1 : 0;
                }
                whole.append(mark + 1, end);
                text = row->keep(std::move(whole));
            }
            return end;
        }
    }
    const char *end = at;
    while (end < m_rowEnd && *end != m_delimiter)
        ++end;
    text = {at, static_cast<size_t>(end - at)};
    return end;
}

bool TextRows::hasContent(int lastColumn)
{
    // Nearly every row starts with a letter or a digit.
    if (m_row<m_rowEnd && * m_row != m_delimiter && * m_row> '"' && *m_row < '\x7F')
        return true;
    std::string_view text;
    const char *at = m_row;
    for (int column = 0; column <= lastColumn; ++column) {
        at = readField(at, text, nullptr);
        if (isFilled(text))
            return true;
        if (at++ == m_rowEnd)
            break;
    }
    return false;
}

uint64_t TextRows::fingerprint()
{
    uint64_t start = 0;
    std::memcpy(&start, m_row,
                std::min<size_t>(sizeof start, static_cast<size_t>(m_rowEnd - m_row)));
    return start;
}

void TextRows::cells(Row &row)
{
    row.clear();
    row.number = m_number;
    if (find(m_row, m_rowEnd, '\0') != m_rowEnd)
        row.expectZeros();
    std::string_view text;
    const char *at = m_row;
    for (int column = 0; column < MostTextColumns; ++column) {
        at = readField(at, text, &row);
        if (isFilled(text))
            row.add({column, Cell::Kind::Text, text, 0});
        if (at++ == m_rowEnd)
            break;
    }
}

} // namespace vlt::tables
