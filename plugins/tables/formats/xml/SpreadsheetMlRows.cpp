#include "plugins/tables/formats/xml/SpreadsheetMlRows.h"

#include "plugins/tables/cells/ByteScan.h"

#include <algorithm>
#include <cstring>

namespace vlt::driver {

namespace {

constexpr XmlRowFramer::Names TableNames = {"Worksheet", "Table", "Row", "Index", "Hidden"};
constexpr std::string_view MidnightSuffix = "T00:00:00.000";

/// A Cell element with a Data element.
struct RawCell
{
    int column = 0;
    char type = 'S'; ///< first letter of ss:Type: String, Number, DateTime, Boolean, Error
    std::string_view markup;
};

int wholeNumber(std::optional<std::string_view> text, int otherwise)
{
    if (!text || text->empty())
        return otherwise;
    int value = 0;
    for (const char c : *text) {
        if (c < '0' || c > '9' || value > MaxColumns)
            return otherwise;
        value = value * 10 + (c - '0');
    }
    return value;
}

/// Text of a Data element: its characters without rich-text tags.
std::string dataText(std::string_view markup)
{
    std::string text;
    const char *at = markup.data();
    const char *end = at + markup.size();
    XmlTag tag;
    while (nextTag(at, end, tag)) {
        text += decodeXml({at, static_cast<std::size_t>(tag.begin - at)});
        if (tag.kind == XmlTag::Kind::CharacterData)
            text += tag.attributes;
        at = tag.end;
    }
    return text + decodeXml({at, static_cast<std::size_t>(end - at)});
}

/// Reads the cells in the markup of a row.
class CellCursor
{
public:
    explicit CellCursor(std::string_view row) : m_at(row.data()), m_end(row.data() + row.size()) {}

    bool next(RawCell &cell)
    {
        for (;;) {
            if (readPlain(cell))
                return true;
            XmlTag tag;
            if (!nextTag(m_at, m_end, tag))
                return false;
            m_at = tag.end;
            if (!tag.opens("Cell"))
                continue;
            beginCell(tag.attributes);
            if (tag.kind == XmlTag::Kind::Open && findData(cell))
                return true;
        }
    }

private:
    void beginCell(std::string_view attributes)
    {
        m_column = m_nextColumn;
        if (attributes.empty()) {
            ++m_nextColumn;
            return;
        }
        m_column = wholeNumber(attribute(attributes, "Index"), m_column + 1) - 1;
        m_nextColumn = m_column + 1 + wholeNumber(attribute(attributes, "MergeAcross"), 0);
    }

    /// Reads a cell of the most frequent form: <Cell><Data ss:Type="T">text</Data></Cell>.
    bool readPlain(RawCell &cell)
    {
        constexpr std::string_view Open = "<Cell><Data ss:Type=\"";
        constexpr std::string_view Close = "</Data></Cell>";
        const char *p = m_at;
        while (p < m_end && (*p == ' ' || *p == '\n' || *p == '\r' || *p == '\t'))
            ++p;
        if (static_cast<std::size_t>(m_end - p) < Open.size() + Close.size() ||
            std::memcmp(p, Open.data(), Open.size()) != 0)
            return false;
        p += Open.size();
        const char type = *p;
        while (p < m_end && *p != '"')
            ++p;
        if (m_end - p < 2 || p[1] != '>')
            return false;
        const char *text = p + 2;
        p = text;
        while (p < m_end && *p != '<')
            ++p;
        if (static_cast<std::size_t>(m_end - p) < Close.size() ||
            std::memcmp(p, Close.data(), Close.size()) != 0)
            return false;
        m_at = p + Close.size();
        m_column = m_nextColumn++;
        cell = {m_column, type, {text, static_cast<std::size_t>(p - text)}};
        return m_column < MaxColumns;
    }

    /// Reads the Data element of a Cell; those inside comments do not count. False if it is missing
    /// or empty.
    bool findData(RawCell &cell)
    {
        XmlTag tag;
        bool found = false;
        const char *inside = nullptr;
        int comment = 0;
        while (nextTag(m_at, m_end, tag)) {
            m_at = tag.end;
            if (tag.closes("Cell"))
                break;
            if (tag.name == "Comment")
                comment += tag.kind == XmlTag::Kind::Open    ? 1
                           : tag.kind == XmlTag::Kind::Close ? -1
                                                             : 0;
            else if (comment == 0 && tag.name == "Data" && tag.kind == XmlTag::Kind::Open) {
                const auto type = attribute(tag.attributes, "Type");
                cell.type = type && !type->empty() ? type->front() : 'S';
                inside = tag.end;
            } else if (comment == 0 && tag.closes("Data") && inside) {
                cell.markup = {inside, static_cast<std::size_t>(tag.begin - inside)};
                found = true;
                inside = nullptr;
            }
        }
        cell.column = m_column;
        return found && !cell.markup.empty() && m_column >= 0 && m_column < MaxColumns;
    }

    const char *m_at;
    const char *m_end;
    int m_column = 0;
    int m_nextColumn = 0;
};

bool isPlain(std::string_view markup)
{
    return markup.find_first_of("<&\r") == std::string_view::npos;
}

bool isBlankMarkup(std::string_view markup)
{
    return isPlain(markup) ? trimmed(markup).empty() : trimmed(dataText(markup)).empty();
}

} // namespace

SpreadsheetMlRows::SpreadsheetMlRows(std::unique_ptr<ByteSource> stream, bool insideTable,
                                     int64_t firstRow, uint64_t streamOffset,
                                     std::function<void(uint64_t)> atEnd)
    : m_framer(std::move(stream), TableNames, insideTable, firstRow, streamOffset)
    , m_atEnd(std::move(atEnd))
{}

bool SpreadsheetMlRows::advance()
{
    if (m_framer.advance())
        return true;
    if (m_framer.containerEnd() > 0)
        m_atEnd(m_framer.containerEnd());
    return false;
}

bool SpreadsheetMlRows::hasContent(int lastColumn)
{
    CellCursor cursor(m_framer.inside());
    RawCell cell;
    while (cursor.next(cell)) {
        if (cell.column <= lastColumn && !isBlankMarkup(cell.markup))
            return true;
    }
    return false;
}

uint64_t SpreadsheetMlRows::fingerprint()
{
    CellCursor cursor(m_framer.inside());
    RawCell cell;
    return cursor.next(cell) ? fingerprintOf(cell.markup) : 0;
}

void SpreadsheetMlRows::cells(Row &row)
{
    row.clear();
    row.number = rowNumber();
    if (m_framer.inside().find('\0') != std::string_view::npos)
        row.expectZeros();
    CellCursor cursor(m_framer.inside());
    RawCell raw;
    bool sorted = true;
    while (cursor.next(raw)) {
        Cell cell = {raw.column, Cell::Kind::Text, raw.markup, 0};
        if (!isPlain(raw.markup))
            cell.text = row.keep(dataText(raw.markup));
        const std::string_view text = trimmed(cell.text);
        if (text.empty())
            continue;
        switch (raw.type) {
        case 'N':
            cell.kind = Cell::Kind::Number;
            cell.text = text;
            break;
        case 'D':
            cell.kind = Cell::Kind::Date;
            cell.text = text.ends_with(MidnightSuffix)
                            ? text.substr(0, text.size() - MidnightSuffix.size())
                        : text.ends_with(".000") ? text.substr(0, text.size() - 4)
                                                 : text;
            break;
        case 'B':
            cell.kind = Cell::Kind::Boolean;
            cell.text = text == "0" ? "FALSE" : "TRUE";
            break;
        case 'E':
            cell.kind = Cell::Kind::Error;
            break;
        default:
            break;
        }
        sorted = sorted && (row.cells.empty() || row.cells.back().column < cell.column);
        row.add(cell);
    }
    if (!sorted)
        std::stable_sort(row.cells.begin(), row.cells.end(),
                         [](const Cell &a, const Cell &b) { return a.column < b.column; });
}

} // namespace vlt::driver
