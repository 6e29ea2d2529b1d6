#include "plugins/tables/formats/xml/SpreadsheetMlWorkbook.h"

#include "plugins/tables/bytes/ChunkedInput.h"
#include "plugins/tables/bytes/RecodeSource.h"
#include "plugins/tables/bytes/Refusal.h"
#include "plugins/tables/cells/ByteScan.h"
#include "plugins/tables/formats/xml/SpreadsheetMlRows.h"

#include <algorithm>
#include <cstring>
#include <map>
#include <mutex>
#include <optional>

namespace vlt::driver {

namespace {

constexpr std::size_t HeadSize = 4096;
constexpr std::ptrdiff_t MaxTagNameSize = 256;
constexpr std::string_view Namespace = "urn:schemas-microsoft-com:office:spreadsheet";

/// The ends of the tables whose rows were read, by the start of their sheet. What follows a table
/// is then found without reading its rows again. Readers in several threads may share it.
class TableEnds
{
public:
    void add(uint64_t sheet, uint64_t end)
    {
        const std::lock_guard lock(m_mutex);
        m_ends[sheet] = end;
    }
    /// The end of a sheet's table; the start of the sheet if it is not known.
    uint64_t behindTable(uint64_t sheet) const
    {
        const std::lock_guard lock(m_mutex);
        const auto found = m_ends.find(sheet);
        return found == m_ends.end() ? sheet : found->second;
    }

private:
    mutable std::mutex m_mutex;
    std::map<uint64_t, uint64_t> m_ends;
};

/// The content of the file in UTF-8 from a position on. Positions count bytes of the UTF-8 text.
struct XmlFile
{
    std::shared_ptr<const InputFile> file;
    std::size_t markSize = 0;
    std::string encoding; ///< empty for UTF-8
    std::shared_ptr<TableEnds> ends = std::make_shared<TableEnds>();

    bool canJump() const { return encoding.empty(); }

    std::unique_ptr<ByteSource> from(uint64_t offset) const
    {
        const uint64_t start = markSize + (canJump() ? offset : 0);
        auto bytes =
            std::make_unique<FileSource>(file, std::vector<Extent>{{start, file->size() - start}});
        if (canJump())
            return bytes;
        auto decoded = std::make_unique<RecodeSource>(std::move(bytes), encoding);
        std::vector<char> skipped(std::size_t{64} << 10);
        while (offset > 0) {
            const std::size_t got =
                decoded->read(skipped.data(),
                              static_cast<std::size_t>(std::min<uint64_t>(offset, skipped.size())));
            if (got == 0)
                break;
            offset -= got;
        }
        return decoded;
    }
};

/// Start of the tag whose name ends with the word at `name`; null if the word is not in the name of
/// a tag. Does not read before `from`.
const char *tagStart(const char *from, const char *name)
{
    const char *limit = name - from > MaxTagNameSize ? name - MaxTagNameSize : from;
    for (const char *at = name; at-- > limit;) {
        if (*at == '<')
            return at;
        if (std::strchr(" \t\r\n\"'=>&;", *at))
            return nullptr;
    }
    return nullptr;
}

/// Finds the tags with the word Worksheet in their names, and those that follow.
class WorksheetTags
{
public:
    /// @param offset  position in the file at which the search begins
    WorksheetTags(const XmlFile &file, uint64_t offset)
        : m_input(file.from(offset))
        , m_at(m_input.begin())
        , m_windowOffset(offset)
    {}

    /// Goes to the next tag with that word; false at the end of the file.
    bool nextOfWorksheet(XmlTag &tag)
    {
        for (;;) {
            const char *found = findText(m_at, m_input.end(), "Worksheet");
            const bool isFound = found != m_input.end();
            const char *open = isFound ? tagStart(m_at, found) : found;
            if (isFound && !open) { // the word is part of a text
                m_at = found + 1;
                continue;
            }
            if (isFound && nextTag(open, m_input.end(), tag)) {
                m_at = tag.end;
                return true;
            }
            const std::ptrdiff_t window = m_input.end() - m_input.begin();
            refuseEndlessMarkup(open, m_input.end());
            if (!more(isFound ? open
                              : m_input.end() - std::min<std::ptrdiff_t>(window, MaxTagNameSize)))
                return false;
        }
    }

    /// Goes to the next tag of any name.
    bool next(XmlTag &tag)
    {
        while (!nextTag(m_at, m_input.end(), tag)) {
            refuseEndlessMarkup(tag.begin, m_input.end());
            if (!more(tag.begin))
                return false;
        }
        m_at = tag.end;
        return true;
    }

    /// The text behind the last tag.
    std::string text()
    {
        while (findText(m_at, m_input.end(), "</") == m_input.end()) {
            if (!more(m_at))
                return {};
        }
        return {m_at, findText(m_at, m_input.end(), "</")};
    }

    /// Position behind the last tag.
    uint64_t offset() const
    {
        return m_windowOffset + static_cast<uint64_t>(m_at - m_input.begin());
    }

private:
    bool more(const char *keep)
    {
        const auto dropped = static_cast<uint64_t>(keep - m_input.begin());
        if (!m_input.more(keep))
            return false;
        m_windowOffset += dropped;
        m_at = m_input.begin();
        return true;
    }

    ChunkedInput m_input;
    const char *m_at;
    uint64_t m_windowOffset;
};

/// Whether the options of a worksheet hide it.
bool isHidden(WorksheetTags &tags)
{
    XmlTag tag;
    while (tags.next(tag) && !tag.closes("WorksheetOptions")) {
        if (tag.kind == XmlTag::Kind::Open && tag.name == "Visible")
            return tags.text().find("Hidden") != std::string::npos;
    }
    return false;
}

class SpreadsheetMlSheet : public Sheet
{
public:
    SpreadsheetMlSheet(XmlFile file, uint64_t offset, std::string name)
        : m_file(std::move(file))
        , m_offset(offset)
        , m_name(std::move(name))
    {}

    const std::string &name() const override { return m_name; }
    /// The options follow the rows; they are searched when there is a choice of sheets.
    bool hidden() const override
    {
        if (!m_isHidden) {
            m_isHidden = false;
            WorksheetTags tags(m_file, m_file.ends->behindTable(m_offset));
            XmlTag tag;
            while (tags.nextOfWorksheet(tag) && !tag.closes("Worksheet")) {
                if (tag.kind == XmlTag::Kind::Open && tag.name == "WorksheetOptions")
                    m_isHidden = isHidden(tags);
            }
        }
        return *m_isHidden;
    }
    std::unique_ptr<RowReader> rows() const override { return rowsAt(m_offset, false, 1); }
    std::unique_ptr<RowReader> rowsFrom(uint64_t position, int64_t rowNumber) const override
    {
        if (!m_file.canJump())
            return nullptr;
        return rowsAt(position, true, rowNumber);
    }

private:
    std::unique_ptr<RowReader> rowsAt(uint64_t position, bool insideTable, int64_t rowNumber) const
    {
        return std::make_unique<SpreadsheetMlRows>(
            m_file.from(position), insideTable, rowNumber, position,
            [ends = m_file.ends, sheet = m_offset](uint64_t end) { ends->add(sheet, end); });
    }

    XmlFile m_file;
    uint64_t m_offset; ///< position behind the Worksheet tag
    std::string m_name;
    mutable std::optional<bool> m_isHidden;
};

/// Finds the worksheets one by one, because the first one is normally sufficient.
class SpreadsheetMlWorkbook : public Workbook
{
public:
    explicit SpreadsheetMlWorkbook(XmlFile file) : m_file(std::move(file)) {}

    bool searchesSheets() const override { return true; }
    std::unique_ptr<Workbook> fromStart() const override
    {
        return std::make_unique<SpreadsheetMlWorkbook>(m_file);
    }
    std::shared_ptr<Sheet> nextSheet() override
    {
        WorksheetTags tags(m_file, m_file.ends->behindTable(m_offset));
        XmlTag tag;
        while (tags.nextOfWorksheet(tag)) {
            if (!tag.opens("Worksheet"))
                continue;
            m_offset = tags.offset();
            const auto name = attribute(tag.attributes, "Name");
            if (tag.kind == XmlTag::Kind::Open)
                return std::make_shared<SpreadsheetMlSheet>(m_file, m_offset,
                                                            name ? decodeXml(*name) : "Sheet");
        }
        return nullptr;
    }

private:
    XmlFile m_file;
    uint64_t m_offset = 0; ///< position behind the tag of the last sheet
};

/// Encoding in the XML declaration; empty if there is none.
std::string declaredEncoding(std::string_view head)
{
    if (!head.starts_with("<?xml"))
        return {};
    const std::string_view declaration = head.substr(0, head.find("?>"));
    const auto encoding = attribute(declaration.substr(5), "encoding");
    return encoding ? std::string(*encoding) : std::string();
}

std::string uppercase(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(),
                   [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c; });
    return text;
}

} // namespace

std::unique_ptr<Workbook> openSpreadsheetMl(const std::shared_ptr<const InputFile> &file)
{
    XmlFile xml;
    xml.file = file;
    const std::string head = file->head(HeadSize);
    std::string encoding = encodingOfMark(head, xml.markSize);
    if (encoding.empty() && head.starts_with(std::string_view("<\0", 2)))
        encoding = "UTF-16LE";
    else if (encoding.empty() && head.starts_with(std::string_view("\0<", 2)))
        encoding = "UTF-16BE";
    else if (encoding.empty())
        encoding = uppercase(declaredEncoding(head));
    // SpreadsheetML from Windows declares ISO-8859-1 for its superset Windows-1252.
    if (encoding == "ISO-8859-1")
        encoding = "CP1252";
    if (encoding != "UTF-8" && encoding != "US-ASCII" && encoding != "ASCII")
        xml.encoding = encoding;
    std::string start(HeadSize, '\0');
    const std::unique_ptr<ByteSource> source = xml.from(0);
    std::size_t size = 0;
    while (const std::size_t got =
               size < start.size() ? source->read(start.data() + size, start.size() - size) : 0)
        size += got;
    start.resize(size);
    if (uppercase(start.substr(0, 256)).find("<!DOCTYPE HTML") != std::string::npos)
        throw RefusedFile(Refusal::NotSupportedFormat, "MESS_TAB_WEB_PAGE");
    XmlCursor cursor(start);
    XmlTag tag;
    while (cursor.next(tag)) {
        if (tag.kind != XmlTag::Kind::Open && tag.kind != XmlTag::Kind::Empty)
            continue;
        if (tag.name == "Workbook" && tag.attributes.find(Namespace) != std::string_view::npos)
            return std::make_unique<SpreadsheetMlWorkbook>(std::move(xml));
        const std::string name = uppercase(std::string(tag.name));
        if (name == "HTML" || name == "TABLE" || name == "HEAD" || name == "BODY" || name == "META")
            throw RefusedFile(Refusal::NotSupportedFormat, "MESS_TAB_WEB_PAGE");
        throw RefusedFile(Refusal::NotSupportedFormat, "MESS_TAB_OTHER_XML", {tag.name});
    }
    throw RefusedFile(Refusal::Malformed, "MESS_TAB_NO_ROOT_ELEMENT");
}

} // namespace vlt::driver
