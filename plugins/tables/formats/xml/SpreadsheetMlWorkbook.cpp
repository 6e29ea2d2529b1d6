#include "plugins/tables/formats/xml/SpreadsheetMlWorkbook.h"

#include "plugins/tables/bytes/ChunkedInput.h"
#include "plugins/tables/bytes/RecodeSource.h"
#include "plugins/tables/bytes/Refusal.h"
#include "plugins/tables/cells/ByteScan.h"
#include "plugins/tables/formats/xml/SpreadsheetMlRows.h"

#include <algorithm>
#include <cstring>

namespace vlt::driver {

namespace {

constexpr std::size_t HeadSize = 4096;
constexpr std::ptrdiff_t MaxTagNameSize = 256;
constexpr std::string_view Namespace = "urn:schemas-microsoft-com:office:spreadsheet";

/// The content of the file in UTF-8 from a position on. Positions count bytes of the UTF-8 text.
struct XmlFile
{
    std::shared_ptr<const InputFile> file;
    std::size_t markSize = 0;
    std::string encoding; ///< empty for UTF-8

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

class SpreadsheetMlSheet : public Sheet
{
public:
    SpreadsheetMlSheet(XmlFile file, uint64_t offset, std::string name)
        : m_file(std::move(file))
        , m_offset(offset)
        , m_name(std::move(name))
    {}

    const std::string &name() const override { return m_name; }
    std::unique_ptr<RowReader> rows() const override
    {
        return std::make_unique<SpreadsheetMlRows>(m_file.from(m_offset), false, 1, m_offset);
    }
    std::unique_ptr<RowReader> rowsFrom(uint64_t position, int64_t rowNumber) const override
    {
        if (!m_file.canJump())
            return nullptr;
        return std::make_unique<SpreadsheetMlRows>(m_file.from(position), true, rowNumber,
                                                   position);
    }

private:
    XmlFile m_file;
    uint64_t m_offset; ///< position behind the Worksheet tag
    std::string m_name;
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

/// Finds the worksheets one by one, because the first one is normally sufficient.
class SpreadsheetMlWorkbook : public Workbook
{
public:
    explicit SpreadsheetMlWorkbook(XmlFile file) : m_file(std::move(file)) {}

    std::shared_ptr<Sheet> nextSheet() override
    {
        ChunkedInput input(m_file.from(m_offset));
        const char *at = input.begin();
        uint64_t windowOffset = m_offset;
        for (;;) {
            XmlTag tag;
            const char *found = findText(at, input.end(), "Worksheet");
            const char *open = found == input.end() ? found : tagStart(at, found);
            if (found != input.end() && !open) { // the word is part of a text
                at = found + 1;
                continue;
            }
            if (found != input.end() && nextTag(open, input.end(), tag)) {
                at = tag.end;
                if (!tag.opens("Worksheet"))
                    continue;
                m_offset = windowOffset + static_cast<uint64_t>(tag.end - input.begin());
                const auto name = attribute(tag.attributes, "Name");
                if (tag.kind == XmlTag::Kind::Open)
                    return std::make_shared<SpreadsheetMlSheet>(m_file, m_offset,
                                                                name ? decodeXml(*name) : "Sheet");
                continue;
            }
            const std::ptrdiff_t window = input.end() - input.begin();
            const char *keep = found != input.end()
                                   ? open
                                   : input.end() - std::min<std::ptrdiff_t>(window, MaxTagNameSize);
            refuseEndlessMarkup(open, input.end());
            windowOffset += static_cast<uint64_t>(keep - input.begin());
            if (!input.more(keep))
                return nullptr;
            at = input.begin();
        }
    }

private:
    XmlFile m_file;
    uint64_t m_offset = 0;
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
    XmlFile xml = {file, 0, {}};
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
