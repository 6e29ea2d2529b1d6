#include "TableWriters.h"

#include "ZipWriter.h"

#include <fstream>
#include <unordered_map>
#include <vector>

namespace vlt::benchmarks {

namespace {

constexpr std::size_t FlushBytes = 1024 * 1024;

std::string xmlEscaped(const std::string &text)
{
    std::string escaped;
    for (const char byte : text) {
        if (byte == '&')
            escaped += "&amp;";
        else if (byte == '<')
            escaped += "&lt;";
        else if (byte == '>')
            escaped += "&gt;";
        else
            escaped += byte;
    }
    return escaped;
}

/// A text file that is written in large blocks.
class TextFile
{
public:
    explicit TextFile(const std::string &path) : m_file(path, std::ios::binary | std::ios::trunc)
    {
        m_file.exceptions(std::ios::badbit | std::ios::failbit);
    }

    void add(std::string_view text)
    {
        m_pending += text;
        if (m_pending.size() >= FlushBytes)
            flush();
    }

    void close()
    {
        flush();
        m_file.close();
    }

private:
    void flush()
    {
        m_file << m_pending;
        m_pending.clear();
    }

    std::ofstream m_file;
    std::string m_pending;
};

class CsvWriter : public TableWriter
{
public:
    explicit CsvWriter(const std::string &path) : m_file(path) {}

    void addRow(const Row &row) override
    {
        std::string line;
        for (const Cell &cell : row) {
            const bool quoted = cell.text.find(',') != std::string::npos;
            line += quoted ? '"' + cell.text + '"' : cell.text;
            line += ',';
        }
        line.pop_back();
        m_file.add(line + "\r\n");
    }

    void finish() override { m_file.close(); }

private:
    TextFile m_file;
};

class SpreadsheetMlWriter : public TableWriter
{
public:
    SpreadsheetMlWriter(const std::string &path, std::int64_t rowCount) : m_file(path)
    {
        m_file.add("<?xml version=\"1.0\"?>\r\n"
                   "<?mso-application progid=\"Excel.Sheet\"?>\r\n"
                   "<Workbook xmlns=\"urn:schemas-microsoft-com:office:spreadsheet\"\r\n"
                   " xmlns:o=\"urn:schemas-microsoft-com:office:office\"\r\n"
                   " xmlns:x=\"urn:schemas-microsoft-com:office:excel\"\r\n"
                   " xmlns:ss=\"urn:schemas-microsoft-com:office:spreadsheet\"\r\n"
                   " xmlns:html=\"http://www.w3.org/TR/REC-html40\">\r\n"
                   " <Styles>\r\n"
                   "  <Style ss:ID=\"Default\" ss:Name=\"Normal\">\r\n"
                   "   <Alignment ss:Vertical=\"Bottom\"/>\r\n"
                   "  </Style>\r\n"
                   " </Styles>\r\n"
                   " <Worksheet ss:Name=\"Sites\">\r\n");
        m_file.add("  <Table ss:ExpandedColumnCount=\"" + std::to_string(ColumnCount) +
                   "\" ss:ExpandedRowCount=\"" + std::to_string(rowCount) +
                   "\" x:FullColumns=\"1\"\r\n   x:FullRows=\"1\" ss:DefaultRowHeight=\"15\">\r\n");
    }

    void addRow(const Row &row) override
    {
        m_file.add("   <Row>\r\n");
        for (const Cell &cell : row) {
            m_file.add(cell.isNumber ? "    <Cell><Data ss:Type=\"Number\">"
                                     : "    <Cell><Data ss:Type=\"String\">");
            m_file.add(xmlEscaped(cell.text));
            m_file.add("</Data></Cell>\r\n");
        }
        m_file.add("   </Row>\r\n");
    }

    void finish() override
    {
        m_file.add("  </Table>\r\n"
                   "  <WorksheetOptions xmlns=\"urn:schemas-microsoft-com:office:excel\">\r\n"
                   "   <Selected/>\r\n"
                   "  </WorksheetOptions>\r\n"
                   " </Worksheet>\r\n"
                   "</Workbook>\r\n");
        m_file.close();
    }

private:
    TextFile m_file;
};

constexpr char XmlStart[] = "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\r\n";
#define VLT_SHEET_NAMESPACE "http://schemas.openxmlformats.org/spreadsheetml/2006/main"
#define VLT_OFFICE_NAMESPACE "http://schemas.openxmlformats.org/officeDocument/2006/relationships"
#define VLT_PACKAGE_NAMESPACE "http://schemas.openxmlformats.org/package/2006"
#define VLT_SHEET_TYPE "application/vnd.openxmlformats-officedocument.spreadsheetml."

constexpr char ContentTypes[] =
    "<Types xmlns=\"" VLT_PACKAGE_NAMESPACE "/content-types\">"
    "<Default Extension=\"rels\""
    " ContentType=\"application/vnd.openxmlformats-package.relationships+xml\"/>"
    "<Default Extension=\"xml\" ContentType=\"application/xml\"/>"
    "<Override PartName=\"/xl/workbook.xml\""
    " ContentType=\"" VLT_SHEET_TYPE "sheet.main+xml\"/>"
    "<Override PartName=\"/xl/worksheets/sheet1.xml\""
    " ContentType=\"" VLT_SHEET_TYPE "worksheet+xml\"/>"
    "<Override PartName=\"/xl/styles.xml\" ContentType=\"" VLT_SHEET_TYPE "styles+xml\"/>"
    "<Override PartName=\"/xl/sharedStrings.xml\""
    " ContentType=\"" VLT_SHEET_TYPE "sharedStrings+xml\"/></Types>";
constexpr char PackageRelations[] =
    "<Relationships xmlns=\"" VLT_PACKAGE_NAMESPACE "/relationships\">"
    "<Relationship Id=\"rId1\" Type=\"" VLT_OFFICE_NAMESPACE "/officeDocument\""
    " Target=\"xl/workbook.xml\"/></Relationships>";
constexpr char Workbook[] =
    "<workbook xmlns=\"" VLT_SHEET_NAMESPACE "\" xmlns:r=\"" VLT_OFFICE_NAMESPACE "\">"
    "<sheets><sheet name=\"Sites\" sheetId=\"1\" r:id=\"rId1\"/></sheets></workbook>";
constexpr char WorkbookRelations[] =
    "<Relationships xmlns=\"" VLT_PACKAGE_NAMESPACE "/relationships\">"
    "<Relationship Id=\"rId3\" Type=\"" VLT_OFFICE_NAMESPACE "/sharedStrings\""
    " Target=\"sharedStrings.xml\"/>"
    "<Relationship Id=\"rId2\" Type=\"" VLT_OFFICE_NAMESPACE "/styles\" Target=\"styles.xml\"/>"
    "<Relationship Id=\"rId1\" Type=\"" VLT_OFFICE_NAMESPACE "/worksheet\""
    " Target=\"worksheets/sheet1.xml\"/></Relationships>";
constexpr char Styles[] =
    "<styleSheet xmlns=\"" VLT_SHEET_NAMESPACE "\">"
    "<fonts count=\"1\"><font><sz val=\"11\"/><name val=\"Sans\"/></font></fonts>"
    "<fills count=\"2\"><fill><patternFill patternType=\"none\"/></fill>"
    "<fill><patternFill patternType=\"gray125\"/></fill></fills>"
    "<borders count=\"1\"><border><left/><right/><top/><bottom/><diagonal/></border></borders>"
    "<cellStyleXfs count=\"1\"><xf numFmtId=\"0\" fontId=\"0\" fillId=\"0\" borderId=\"0\"/>"
    "</cellStyleXfs><cellXfs count=\"1\">"
    "<xf numFmtId=\"0\" fontId=\"0\" fillId=\"0\" borderId=\"0\" xfId=\"0\"/></cellXfs>"
    "<cellStyles count=\"1\"><cellStyle name=\"Normal\" xfId=\"0\" builtinId=\"0\"/></cellStyles>"
    "</styleSheet>";

/// Letters of a column counted from 0: A, B, .. Z, AA.
std::string columnLetters(int column)
{
    std::string letters;
    for (++column; column > 0; column = (column - 1) / 26)
        letters.insert(letters.begin(), static_cast<char>('A' + (column - 1) % 26));
    return letters;
}

/// Texts of a workbook, each once, in the order of their first use.
class SharedStrings
{
public:
    std::uint32_t indexOf(const std::string &text)
    {
        ++m_uses;
        const auto next = static_cast<std::uint32_t>(m_order.size());
        const auto [place, isNew] = m_index.try_emplace(text, next);
        if (isNew)
            m_order.push_back(&place->first);
        return place->second;
    }

    void writeTo(ZipWriter &zip) const
    {
        zip.beginEntry("xl/sharedStrings.xml");
        std::string xml = XmlStart;
        xml += "<sst xmlns=\"" VLT_SHEET_NAMESPACE "\" count=\"" + std::to_string(m_uses) +
               "\" uniqueCount=\"" + std::to_string(m_order.size()) + "\">";
        for (const std::string *text : m_order) {
            xml += "<si><t>" + xmlEscaped(*text) + "</t></si>";
            if (xml.size() >= FlushBytes) {
                zip.write(xml);
                xml.clear();
            }
        }
        zip.write(xml + "</sst>");
        zip.endEntry();
    }

private:
    std::unordered_map<std::string, std::uint32_t> m_index;
    std::vector<const std::string *> m_order;
    std::int64_t m_uses = 0;
};

class XlsxWriter : public TableWriter
{
public:
    XlsxWriter(const std::string &path, std::int64_t rowCount) : m_zip(path)
    {
        for (int column = 0; column < ColumnCount; ++column)
            m_letters.push_back(columnLetters(column));
        addPart("[Content_Types].xml", ContentTypes);
        addPart("_rels/.rels", PackageRelations);
        addPart("xl/workbook.xml", Workbook);
        addPart("xl/_rels/workbook.xml.rels", WorkbookRelations);
        m_zip.beginEntry("xl/worksheets/sheet1.xml");
        m_pending = XmlStart;
        m_pending +=
            "<worksheet xmlns=\"" VLT_SHEET_NAMESPACE "\" xmlns:r=\"" VLT_OFFICE_NAMESPACE "\""
            " xmlns:mc=\"http://schemas.openxmlformats.org/markup-compatibility/2006\""
            " mc:Ignorable=\"x14ac\" xmlns:x14ac=\"http://schemas.microsoft.com/office/"
            "spreadsheetml/2009/9/ac\"><dimension ref=\"A1:" +
            m_letters.back() + std::to_string(rowCount) +
            "\"/><sheetViews><sheetView tabSelected=\"1\" workbookViewId=\"0\"/></sheetViews>"
            "<sheetFormatPr defaultRowHeight=\"15\" x14ac:dyDescent=\"0.25\"/><sheetData>";
    }

    void addRow(const Row &row) override
    {
        const std::string number = std::to_string(++m_row);
        m_pending += "<row r=\"" + number + "\" spans=\"1:" + std::to_string(ColumnCount) +
                     "\" x14ac:dyDescent=\"0.25\">";
        for (std::size_t column = 0; column < row.size(); ++column) {
            const Cell &cell = row[column];
            m_pending += "<c r=\"" + m_letters[column] + number;
            if (cell.isNumber)
                m_pending += "\"><v>" + cell.text;
            else
                m_pending += "\" t=\"s\"><v>" + std::to_string(m_strings.indexOf(cell.text));
            m_pending += "</v></c>";
        }
        m_pending += "</row>";
        if (m_pending.size() >= FlushBytes) {
            m_zip.write(m_pending);
            m_pending.clear();
        }
    }

    void finish() override
    {
        m_zip.write(m_pending + "</sheetData><pageMargins left=\"0.7\" right=\"0.7\" top=\"0.75\""
                                " bottom=\"0.75\" header=\"0.3\" footer=\"0.3\"/></worksheet>");
        m_zip.endEntry();
        addPart("xl/styles.xml", Styles);
        m_strings.writeTo(m_zip);
        m_zip.finish();
    }

private:
    void addPart(const std::string &name, const char *body)
    {
        m_zip.addEntry(name, std::string(XmlStart) + body);
    }

    ZipWriter m_zip;
    SharedStrings m_strings;
    std::vector<std::string> m_letters;
    std::string m_pending;
    std::int64_t m_row = 0;
};

} // namespace

std::unique_ptr<TableWriter> makeTableWriter(const std::string &format, const std::string &path,
                                             std::int64_t rowCount)
{
    if (format == "csv")
        return std::make_unique<CsvWriter>(path);
    if (format == "xlsx")
        return std::make_unique<XlsxWriter>(path, rowCount);
    if (format == "xml")
        return std::make_unique<SpreadsheetMlWriter>(path, rowCount);
    return nullptr;
}

} // namespace vlt::benchmarks
