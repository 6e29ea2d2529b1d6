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
    SpreadsheetMlWriter(const std::string &path, const Sheet &sheet) : m_file(path)
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
                   " <Worksheet ss:Name=\"" +
                   sheet.name + "\">\r\n");
        m_file.add("  <Table ss:ExpandedColumnCount=\"" + std::to_string(sheet.columnCount) +
                   "\" ss:ExpandedRowCount=\"" + std::to_string(sheet.rowCount) +
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

constexpr char ContentTypesStart[] =
    "<Types xmlns=\"" VLT_PACKAGE_NAMESPACE "/content-types\">"
    "<Default Extension=\"rels\""
    " ContentType=\"application/vnd.openxmlformats-package.relationships+xml\"/>"
    "<Default Extension=\"xml\" ContentType=\"application/xml\"/>"
    "<Override PartName=\"/xl/workbook.xml\""
    " ContentType=\"" VLT_SHEET_TYPE "sheet.main+xml\"/>"
    "<Override PartName=\"/xl/styles.xml\" ContentType=\"" VLT_SHEET_TYPE "styles+xml\"/>"
    "<Override PartName=\"/xl/sharedStrings.xml\""
    " ContentType=\"" VLT_SHEET_TYPE "sharedStrings+xml\"/>";
constexpr char PackageRelations[] =
    "<Relationships xmlns=\"" VLT_PACKAGE_NAMESPACE "/relationships\">"
    "<Relationship Id=\"rId1\" Type=\"" VLT_OFFICE_NAMESPACE "/officeDocument\""
    " Target=\"xl/workbook.xml\"/></Relationships>";
constexpr char WorkbookStart[] =
    "<workbook xmlns=\"" VLT_SHEET_NAMESPACE "\" xmlns:r=\"" VLT_OFFICE_NAMESPACE "\"><sheets>";
constexpr char WorkbookRelationsStart[] =
    "<Relationships xmlns=\"" VLT_PACKAGE_NAMESPACE "/relationships\">"
    "<Relationship Id=\"rIdStrings\" Type=\"" VLT_OFFICE_NAMESPACE "/sharedStrings\""
    " Target=\"sharedStrings.xml\"/>"
    "<Relationship Id=\"rIdStyles\" Type=\"" VLT_OFFICE_NAMESPACE "/styles\""
    " Target=\"styles.xml\"/>";
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
    XlsxWriter(const std::string &path, std::vector<Sheet> sheets)
        : m_zip(path)
        , m_sheets(std::move(sheets))
    {
        std::string types = ContentTypesStart;
        std::string workbook = WorkbookStart;
        std::string relations = WorkbookRelationsStart;
        for (std::size_t i = 0; i < m_sheets.size(); ++i) {
            const std::string number = std::to_string(i + 1);
            types += "<Override PartName=\"/xl/worksheets/sheet" + number +
                     ".xml\" ContentType=\"" VLT_SHEET_TYPE "worksheet+xml\"/>";
            workbook += "<sheet name=\"" + m_sheets[i].name + "\" sheetId=\"" + number +
                        "\" r:id=\"rId" + number + "\"/>";
            relations += "<Relationship Id=\"rId" + number +
                         "\" Type=\"" VLT_OFFICE_NAMESPACE
                         "/worksheet\" Target=\"worksheets/sheet" +
                         number + ".xml\"/>";
        }
        addPart("[Content_Types].xml", types + "</Types>");
        addPart("_rels/.rels", PackageRelations);
        addPart("xl/workbook.xml", workbook + "</sheets></workbook>");
        addPart("xl/_rels/workbook.xml.rels", relations + "</Relationships>");
    }

    void beginSheet() override
    {
        endSheet();
        const Sheet &sheet = m_sheets.at(m_sheet++);
        m_row = 0;
        m_letters.clear();
        for (std::size_t column = 0; column < sheet.columnCount; ++column)
            m_letters.push_back(columnLetters(static_cast<int>(column)));
        m_zip.beginEntry("xl/worksheets/sheet" + std::to_string(m_sheet) + ".xml");
        m_pending = XmlStart;
        m_pending +=
            "<worksheet xmlns=\"" VLT_SHEET_NAMESPACE "\" xmlns:r=\"" VLT_OFFICE_NAMESPACE "\""
            " xmlns:mc=\"http://schemas.openxmlformats.org/markup-compatibility/2006\""
            " mc:Ignorable=\"x14ac\" xmlns:x14ac=\"http://schemas.microsoft.com/office/"
            "spreadsheetml/2009/9/ac\"><dimension ref=\"A1:" +
            m_letters.back() + std::to_string(sheet.rowCount) +
            "\"/><sheetViews><sheetView tabSelected=\"1\" workbookViewId=\"0\"/></sheetViews>"
            "<sheetFormatPr defaultRowHeight=\"15\" x14ac:dyDescent=\"0.25\"/><sheetData>";
    }

    void addRow(const Row &row) override
    {
        const std::string number = std::to_string(++m_row);
        m_pending += "<row r=\"" + number + "\" spans=\"1:" + std::to_string(row.size()) +
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
        endSheet();
        addPart("xl/styles.xml", Styles);
        m_strings.writeTo(m_zip);
        m_zip.finish();
    }

private:
    void addPart(const std::string &name, const std::string &body)
    {
        m_zip.addEntry(name, XmlStart + body);
    }

    void endSheet()
    {
        if (m_sheet == 0)
            return;
        m_zip.write(m_pending + "</sheetData><pageMargins left=\"0.7\" right=\"0.7\" top=\"0.75\""
                                " bottom=\"0.75\" header=\"0.3\" footer=\"0.3\"/></worksheet>");
        m_zip.endEntry();
    }

    ZipWriter m_zip;
    SharedStrings m_strings;
    std::vector<Sheet> m_sheets;
    std::size_t m_sheet = 0; ///< number of the current sheet, from 1
    std::vector<std::string> m_letters;
    std::string m_pending;
    std::int64_t m_row = 0;
};

} // namespace

std::unique_ptr<TableWriter> makeTableWriter(const std::string &format, const std::string &path,
                                             const std::vector<Sheet> &sheets)
{
    if (format == "xlsx")
        return std::make_unique<XlsxWriter>(path, sheets);
    if (sheets.size() != 1)
        return nullptr;
    if (format == "csv")
        return std::make_unique<CsvWriter>(path);
    if (format == "xml")
        return std::make_unique<SpreadsheetMlWriter>(path, sheets.front());
    return nullptr;
}

} // namespace vlt::benchmarks
