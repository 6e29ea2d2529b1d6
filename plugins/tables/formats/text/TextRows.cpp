#include "plugins/tables/formats/text/TextRows.h"

#include "contract/TableTexts.h"
#include "plugins/tables/cells/ByteScan.h"
#include "plugins/tables/formats/text/EncodingGuess.h"
#include "plugins/tables/formats/text/Utf8Check.h"

#include <algorithm>
#include <cstring>
#include <vector>

namespace vlt::driver {

namespace {

/// Maximum size of a quoted field in bytes; beyond it, the quotation mark is an ordinary character.
constexpr std::ptrdiff_t MaxQuotedSize = std::ptrdiff_t{8} << 20;

const char *find(const char *begin, const char *end, char wanted)
{
    const void *found =
        begin < end ? std::memchr(begin, wanted, static_cast<std::size_t>(end - begin)) : nullptr;
    return found ? static_cast<const char *>(found) : end;
}

/// A field of a row.
struct TextField
{
    std::string_view text;
    const char *end = nullptr; ///< the delimiter after it, or the end of the row
    bool isQuoted = false;
};

/// Reads the field at `at` of a row that ends at `rowEnd`. Without `row`, which stores texts,
/// doubled quotation marks stay doubled.
TextField readField(const char *at, const char *rowEnd, char delimiter, Row *row)
{
    if (at < rowEnd && *at == '"') {
        bool doubled = false;
        const char *mark = at;
        while ((mark = find(mark + 1, rowEnd, '"')) != rowEnd && mark + 1 < rowEnd &&
               mark[1] == '"') {
            doubled = true;
            ++mark;
        }
        if (mark != rowEnd) {
            const char *end = find(mark + 1, rowEnd, delimiter);
            std::string_view text = {at + 1, static_cast<std::size_t>(mark - at - 1)};
            if (row && (doubled || end != mark + 1)) {
                std::string whole;
                for (std::size_t i = 0; i < text.size(); ++i) {
                    whole += text[i];
                    i += text[i] == '"' ? 1 : 0;
                }
                whole.append(mark + 1, end);
                text = row->keep(std::move(whole));
            }
            return {text, end, true};
        }
    }
    const char *end = at;
    while (end < rowEnd && *end != delimiter)
        ++end;
    return {{at, static_cast<std::size_t>(end - at)}, end, false};
}

/// The number of delimiters in each line of a text.
std::vector<std::size_t> delimitersPerLine(std::string_view text, char delimiter)
{
    std::vector<std::size_t> counts = {0};
    for (std::size_t at = 0; at < text.size(); ++at) {
        const bool ends = text[at] == '\n' || (text[at] == '\r' && text.substr(at + 1, 1) != "\n");
        if (ends)
            counts.push_back(0);
        else
            counts.back() += text[at] == delimiter ? 1 : 0;
    }
    return counts;
}

/// The number of lines in a quoted field that are probably rows of the table, because a quotation
/// mark is missing: those with as many delimiters as a row. The lines of an address or a remark
/// have fewer.
///
/// @param before  number of delimiters before the field in its row
/// @param behind  number of delimiters after it
std::size_t swallowedRows(std::string_view text, std::size_t before, std::size_t behind,
                          char delimiter, std::size_t fieldCount)
{
    constexpr std::size_t MinFields = 3;
    if (fieldCount < MinFields)
        return 0;
    std::vector<std::size_t> lines = delimitersPerLine(text, delimiter);
    lines.front() += before;
    lines.back() += behind;
    const auto whole = std::count(lines.begin() + 1, lines.end(), fieldCount - 1);
    const std::size_t below = lines.size() - 1;
    return lines.front() == fieldCount - 1 && static_cast<std::size_t>(whole) * 2 > below ? below
                                                                                          : 0;
}

/// Whether the field holds more than blanks.
bool isFilled(std::string_view field)
{
    return !field.empty() &&
           (static_cast<unsigned char>(field[0]) - 0x21U < 0x5EU || !trimmed(field).empty());
}

} // namespace

TextRows::TextRows(std::unique_ptr<ByteSource> stream, const TextFormat &format, int64_t firstRow,
                   uint64_t position)
    : m_input(std::move(stream))
    , m_delimiter(format.delimiter)
    , m_encoding(format.encoding)
    , m_fieldCount(format.fieldCount)
    , m_windowPosition(position)
    , m_number(firstRow - 1)
{
    m_row = m_rowEnd = m_next = m_input.begin();
}

/// Appends to the window and keeps the current row.
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

/// The mark that closes the quoted field at `field`, or null. The window may move, so `field` is
/// invalid afterwards; its distance from m_row stays the same.
const char *TextRows::closingQuote(const char *field)
{
    const std::ptrdiff_t start = field - m_row;
    std::ptrdiff_t at = start + 1;
    for (;;) {
        const char *mark = find(m_row + at, m_input.end(), '"');
        if (mark == m_input.end() || mark + 1 == m_input.end()) {
            at = mark - m_row;
            if (at - start > MaxQuotedSize || !more())
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

bool TextRows::hasContent(int lastColumn)
{
    // Nearly every row starts with a letter or a digit.
    if (m_row<m_rowEnd && * m_row != m_delimiter && * m_row> '"' && *m_row < '\x7F')
        return true;
    const char *at = m_row;
    for (int column = 0; column <= lastColumn; ++column) {
        const TextField field = readField(at, m_rowEnd, m_delimiter, nullptr);
        if (isFilled(field.text))
            return true;
        if (field.end == m_rowEnd)
            break;
        at = field.end + 1;
    }
    return false;
}

uint64_t TextRows::fingerprint()
{
    constexpr uint64_t SmallLetters = 0x2020202020202020;
    uint64_t start = 0;
    std::memcpy(&start, m_row,
                std::min<std::size_t>(sizeof start, static_cast<std::size_t>(m_rowEnd - m_row)));
    return start | SmallLetters;
}

/// The row with U+FFFD for every byte that is not part of a character. Their number is reported.
std::string_view TextRows::readable(Row &row) const
{
    constexpr std::string_view Replacement = "\xEF\xBF\xBD";
    std::string_view line(m_row, static_cast<std::size_t>(m_rowEnd - m_row));
    std::size_t unreadable = 0;
    if (m_encoding == Utf8) {
        unreadable = countUtf8(line).badBytes;
        if (unreadable > 0)
            line = row.keep(repairedUtf8(line));
    } else // RecodeSource has replaced them
        for (const char *at = findText(m_row, m_rowEnd, Replacement); at != m_rowEnd;
             at = findText(at + 1, m_rowEnd, Replacement))
            ++unreadable;
    if (unreadable > 0)
        row.faults.push_back({-1, contract::formatted("MESS_TAB_UNREADABLE_BYTES",
                                                      {m_encoding, std::to_string(unreadable)})});
    return line;
}

void TextRows::cells(Row &row)
{
    row.clear();
    row.number = m_number;
    std::string_view line(m_row, static_cast<std::size_t>(m_rowEnd - m_row));
    if (skipAscii(line, 0) < line.size())
        line = readable(row);
    const char *at = line.data();
    const char *const end = at + line.size();
    if (find(at, end, '\0') != end)
        row.expectZeros();
    const bool hasLines = findAnyOf(at, end, '\n', '\r', '\n') != end;
    TextField lines; ///< the first field with more than one line
    int columnOfLines = -1;
    const char delimiter = m_delimiter;
    int column = 0;
    for (; column < MaxTextColumns; ++column) {
        TextField field; // nearly all fields have no quotes
        if (at < end && *at == '"')
            field = readField(at, end, m_delimiter, &row);
        else {
            const char *stop = at;
            while (stop < end && *stop != delimiter)
                ++stop;
            field = {{at, static_cast<std::size_t>(stop - at)}, stop, false};
        }
        if (isFilled(field.text))
            row.add({column, Cell::Kind::Text, field.text, 0});
        if (hasLines && columnOfLines < 0 && field.isQuoted &&
            field.text.find_first_of("\r\n") != std::string_view::npos) {
            lines = field;
            columnOfLines = column;
        }
        if (field.end == end)
            break;
        at = field.end + 1;
    }
    const std::size_t swallowed =
        columnOfLines < 0 ? 0
                          : swallowedRows(lines.text, static_cast<std::size_t>(columnOfLines),
                                          static_cast<std::size_t>(column - columnOfLines),
                                          m_delimiter, m_fieldCount);
    if (swallowed > 0)
        row.faults.push_back({columnOfLines, contract::formatted("MESS_TAB_SWALLOWED_ROWS",
                                                                 {std::to_string(swallowed)})});
}

} // namespace vlt::driver
