#include "plugins/tables/formats/xlsx/XlsxRows.h"

#include "plugins/tables/cells/ByteScan.h"
#include "plugins/tables/cells/Numbers.h"
#include "plugins/tables/cells/OfficeDates.h"

#include <algorithm>
#include <charconv>
#include <cstring>

namespace vlt::driver {

namespace {

constexpr XmlRowFramer::Names SheetNames = {"worksheet", "sheetData", "row", "r", "hidden"};

bool isBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

uint64_t wholeNumber(std::string_view text)
{
    uint64_t value = 0;
    for (const char c : text) {
        const auto digit = static_cast<unsigned>(c - '0');
        if (digit > 9)
            break;
        value = value * 10 + digit;
    }
    return value;
}

/// The number of a shared string; nothing if the text is not a number.
std::optional<uint64_t> stringNumber(std::string_view value)
{
    const std::string_view text = trimmed(value);
    uint64_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size())
        return std::nullopt;
    return number;
}

std::optional<std::string_view> sharedText(const XlsxContext &context, std::string_view value)
{
    const std::optional<uint64_t> number = stringNumber(value);
    return number ? context.strings->at(*number) : std::nullopt;
}

/// Column of a cell reference such as AB12, from 0; -1 if the text is not a reference.
int columnOf(std::string_view reference)
{
    int column = 0;
    for (const char c : reference) {
        const auto letter = static_cast<unsigned>((c & ~0x20) - 'A');
        if (letter >= 26 || column > MaxColumns)
            break;
        column = column * 26 + static_cast<int>(letter) + 1;
    }
    return column - 1;
}

char typeOf(std::string_view text)
{
    if (text == "str")
        return 't';
    return text.empty() ? 'n' : text[0]; // s, n, b, e, d, inlineStr
}

/// Start of the local name of a tag whose name starts at `p`, after a prefix.
const char *localName(const char *p, const char *end)
{
    const char *name = p;
    while (p < end && *p != '>' && *p != '/' && !isBlank(*p)) {
        if (*p++ == ':')
            name = p;
    }
    return name;
}

/// Reads the attributes of a c element; returns the position behind its ">", or null if the tag is
/// incomplete. Sets `empty` for an empty element ("/>").
const char *readCellAttributes(const char *p, const char *end, XlsxRawCell &cell, bool &empty)
{
    empty = false;
    for (;;) {
        while (p < end && isBlank(*p))
            ++p;
        if (p >= end)
            return nullptr;
        if (*p == '>')
            return p + 1;
        if (*p == '/') {
            empty = true;
            return p + 1 < end ? p + 2 : nullptr;
        }
        const char *name = p;
        while (p < end && *p != '=')
            ++p;
        const char *value = p + 2;
        if (value >= end)
            return nullptr;
        const char quote = p[1];
        p = value;
        while (p < end && *p != quote)
            ++p;
        const std::string_view text(value, static_cast<std::size_t>(p - value));
        ++p;
        if (*name == 'r' && name[1] == '=') {
            if (const int column = columnOf(text); column >= 0)
                cell.column = column;
        } else if (*name == 's' && name[1] == '=')
            cell.style = static_cast<int>(wholeNumber(text));
        else if (*name == 't' && name[1] == '=')
            cell.type = typeOf(text);
    }
}

const char *skipTo(const char *p, const char *end, char wanted)
{
    while (p < end && *p != wanted)
        ++p;
    return p;
}

/// Reads the children of a c element up to its closing tag; returns the position behind that tag.
const char *readCellContent(const char *p, const char *end, XlsxRawCell &cell)
{
    for (;;) {
        p = skipTo(p, end, '<');
        if (p >= end)
            return end;
        const bool closing = p + 1 < end && p[1] == '/';
        const char *name = localName(p + (closing ? 2 : 1), end);
        const char *nameEnd = name;
        while (nameEnd < end && *nameEnd != '>' && *nameEnd != '/' && !isBlank(*nameEnd))
            ++nameEnd;
        const std::string_view local(name, static_cast<std::size_t>(nameEnd - name));
        const char *close = skipTo(nameEnd, end, '>');
        if (closing && local == "c")
            return std::min(close + 1, end);
        p = std::min(close + 1, end);
        if (closing || close >= end || close[-1] == '/')
            continue;
        if (local == "v") {
            XmlTag tag; // comments may precede the value
            const char *stop = skipTo(p, end, '<');
            while (stop == p && nextTag(p, end, tag) && tag.kind == XmlTag::Kind::Other) {
                p = tag.end;
                stop = skipTo(p, end, '<');
            }
            cell.value = {p, static_cast<std::size_t>(stop - p)};
            p = stop;
        } else if (local == "is") {
            const char *stop = p;
            for (;;) {
                stop = findText(stop, end, "is>");
                if (stop == end || stop[-1] == '/' || stop[-1] == ':')
                    break;
                ++stop;
            }
            const char *open = stop;
            while (open > p && *open != '<')
                --open;
            cell.value = {p, static_cast<std::size_t>(open - p)};
            p = stop;
        }
    }
}

} // namespace

/// Scans the bytes itself instead of using XmlCursor, because every cell of a sheet passes through
/// here and reading them takes the larger part of the time.
bool nextXlsxCell(const char *&at, const char *end, int column, XlsxRawCell &cell)
{
    for (;;) {
        const char *p = skipTo(at, end, '<');
        if (p >= end) {
            at = end;
            return false;
        }
        ++p;
        const char *name = *p == 'c' ? p : localName(p, end);
        if (name + 1 >= end || *name != 'c' ||
            !(isBlank(name[1]) || name[1] == '>' || name[1] == '/') || *p == '/') {
            at = p;
            continue;
        }
        cell = {};
        cell.column = column + 1;
        bool empty = false;
        p = readCellAttributes(name + 1, end, cell, empty);
        if (!p) {
            at = end;
            return false;
        }
        column = cell.column;
        if (!empty) {
            constexpr std::string_view Value = "<v>";
            constexpr std::string_view Closing = "</v></c>";
            const char *stop = nullptr;
            // Common writers store <v>value</v></c> without prefixes; other forms take longer.
            if (end - p > 11 && std::memcmp(p, Value.data(), Value.size()) == 0) {
                p += Value.size();
                stop = skipTo(p, end, '<');
            }
            if (stop && static_cast<std::size_t>(end - stop) >= Closing.size() &&
                std::memcmp(stop, Closing.data(), Closing.size()) == 0) {
                cell.value = {p, static_cast<std::size_t>(stop - p)};
                p = stop + Closing.size();
            } else
                p = readCellContent(stop ? p - Value.size() : p, end, cell);
        }
        at = p;
        if (!cell.value.empty() && cell.column < MaxColumns)
            return true;
    }
}

XlsxRows::XlsxRows(std::unique_ptr<ByteSource> sheet, std::shared_ptr<const XlsxContext> context)
    : m_framer(std::move(sheet), SheetNames, false, 1, 0)
    , m_context(std::move(context))
{}

bool XlsxRows::hasContent(int lastColumn)
{
    // Shared strings are not read to find empty ones: a row in which all texts are empty refers to
    // only one string, and any other row has a second value after few cells.
    const std::string_view inside = m_framer.inside();
    const char *at = inside.data();
    const char *end = at + inside.size();
    XlsxRawCell cell;
    int column = -1;
    std::string_view suspect;
    while (nextXlsxCell(at, end, column, cell)) {
        column = cell.column;
        if (column > lastColumn)
            continue;
        if (cell.type == 's') {
            if (suspect.empty())
                suspect = cell.value;
            else if (suspect != cell.value)
                return true;
        } else if (cell.type == 'i') {
            if (!trimmed(richText(cell.value)).empty())
                return true;
        } else if (!trimmed(cell.value).empty())
            return true;
    }
    if (suspect.empty())
        return false;
    const auto text = sharedText(*m_context, suspect);
    return !text || !trimmed(*text).empty(); // a missing text was not blank
}

uint64_t XlsxRows::fingerprint()
{
    const std::string_view inside = m_framer.inside();
    const char *at = inside.data();
    XlsxRawCell cell;
    return nextXlsxCell(at, at + inside.size(), -1, cell) ? fingerprintOf(cell.value) : 0;
}

void XlsxRows::collectSharedStrings(std::vector<uint64_t> &numbers) const
{
    const std::string_view inside = m_framer.inside();
    const char *at = inside.data();
    XlsxRawCell cell;
    int column = -1;
    while (nextXlsxCell(at, inside.data() + inside.size(), column, cell)) {
        column = cell.column;
        const auto number = cell.type == 's' ? stringNumber(cell.value) : std::nullopt;
        if (number)
            numbers.push_back(*number);
    }
}

bool XlsxRows::convert(const XlsxRawCell &raw, Cell &cell, Row &row) const
{
    cell = {raw.column, Cell::Kind::Text, raw.value, 0};
    switch (raw.type) {
    case 's':
        if (leavesOut(static_cast<std::size_t>(raw.column)))
            return false;
        if (const auto text = sharedText(*m_context, raw.value))
            cell.text = *text;
        else
            row.addMissingText(raw.column, raw.value);
        break;
    case 'i':
        cell.text = row.keep(richText(raw.value));
        if (cell.text.find('\0') != std::string_view::npos)
            row.expectZeros();
        break;
    case 't':
        if (raw.value.find_first_of("&\r_") != std::string_view::npos)
            cell.text = row.keep(richText("<t>" + std::string(raw.value) + "</t>"));
        if (cell.text.find('\0') != std::string_view::npos) // from _x0000_
            row.expectZeros();
        break;
    case 'b':
        cell.kind = Cell::Kind::Boolean;
        cell.text = raw.value == "0" ? "FALSE" : "TRUE";
        break;
    case 'e':
        cell.kind = Cell::Kind::Error;
        break;
    case 'd':
        cell.kind = Cell::Kind::Date;
        break;
    default:
        cell.kind = Cell::Kind::Number;
        if (static_cast<std::size_t>(raw.style) < m_context->dateStyles.size() &&
            m_context->dateStyles[static_cast<std::size_t>(raw.style)]) {
            if (const auto serial = parseNumber(raw.value)) {
                if (std::string date = isoDate(*serial, m_context->datesFrom1904); !date.empty()) {
                    cell.kind = Cell::Kind::Date;
                    cell.text = row.keep(std::move(date));
                }
            }
        }
        return true;
    }
    return !trimmed(cell.text).empty();
}

void XlsxRows::cells(Row &row)
{
    row.clear();
    row.number = rowNumber();
    const std::string_view inside = m_framer.inside();
    if (m_context->strings->holdZeros() || inside.find('\0') != std::string_view::npos)
        row.expectZeros();
    const char *at = inside.data();
    const char *end = at + inside.size();
    XlsxRawCell raw;
    Cell cell;
    int column = -1;
    bool sorted = true;
    while (nextXlsxCell(at, end, column, raw)) {
        sorted = sorted && raw.column > column;
        column = raw.column;
        if (convert(raw, cell, row))
            row.add(cell);
    }
    if (!sorted)
        std::stable_sort(row.cells.begin(), row.cells.end(),
                         [](const Cell &a, const Cell &b) { return a.column < b.column; });
}

} // namespace vlt::driver
