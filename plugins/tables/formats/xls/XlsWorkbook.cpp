#include "plugins/tables/formats/xls/XlsWorkbook.h"

#include "plugins/tables/bytes/CompoundFile.h"
#include "plugins/tables/bytes/LittleEndian.h"
#include "plugins/tables/bytes/RecodeSource.h"
#include "plugins/tables/bytes/Refusal.h"
#include "plugins/tables/cells/OfficeDates.h"
#include "plugins/tables/formats/xls/XlsRows.h"

#include <map>

namespace vlt::driver {

namespace {

constexpr uint16_t Biff8 = 0x0600;
constexpr uint16_t Biff5 = 0x0500;
constexpr char Worksheet = 0;

class XlsSheet : public Sheet
{
public:
    XlsSheet(std::shared_ptr<const InputFile> file, std::vector<Extent> stream, std::string name,
             bool hidden, std::shared_ptr<const XlsContext> context)
        : m_file(std::move(file))
        , m_stream(std::move(stream))
        , m_name(std::move(name))
        , m_hidden(hidden)
        , m_context(std::move(context))
    {}

    const std::string &name() const override { return m_name; }
    bool hidden() const override { return m_hidden; }
    std::unique_ptr<RowReader> rows() const override
    {
        return std::make_unique<XlsRows>(std::make_unique<FileSource>(m_file, m_stream), m_context);
    }

private:
    std::shared_ptr<const InputFile> m_file;
    std::vector<Extent> m_stream;
    std::string m_name;
    bool m_hidden;
    std::shared_ptr<const XlsContext> m_context;
};

/// The name of a Windows code page for iconv.
std::string codePageName(uint16_t number)
{
    switch (number) {
    case 1200:
        return "UTF-16LE";
    case 10000:
    case 32768:
        return "MACINTOSH";
    case 32769:
        return "CP1252";
    case 367:
        return "ASCII";
    default:
        return "CP" + std::to_string(number);
    }
}

class XlsWorkbook : public Workbook
{
public:
    XlsWorkbook(std::shared_ptr<const InputFile> file, std::vector<Extent> stream)
        : m_file(std::move(file))
        , m_stream(std::move(stream))
        , m_context(std::make_shared<XlsContext>())
    {
        m_context->strings = std::make_shared<XlsStrings>(m_file, m_stream);
        readGlobals();
        m_context->dateStyles.reserve(m_styleFormats.size());
        for (const int format : m_styleFormats) {
            const auto own = m_formats.find(format);
            m_context->dateStyles.push_back(own != m_formats.end() ? own->second
                                                                   : isDateFormatId(format));
        }
    }

    std::shared_ptr<Sheet> nextSheet() override
    {
        while (m_next < m_sheets.size()) {
            const SheetEntry &entry = m_sheets[m_next++];
            if (entry.isWorksheet)
                return std::make_shared<XlsSheet>(m_file, extentsFrom(m_stream, entry.position),
                                                  entry.name, entry.hidden, m_context);
        }
        return nullptr;
    }

private:
    struct SheetEntry
    {
        uint64_t position;
        std::string name;
        bool isWorksheet;
        bool hidden;
    };

    void readGlobals()
    {
        XlsRecords records(std::make_unique<FileSource>(m_file, m_stream));
        if (!records.next() || records.type() != XlsBof || records.data().size() < 4)
            throw RefusedFile(Refusal::NotSupportedFormat, "MESS_TAB_OLD_WORKBOOK");
        const uint16_t version = u16(records.data().data());
        if (version != Biff8 && version != Biff5)
            throw RefusedFile(Refusal::NotSupportedFormat, "MESS_TAB_OLD_WORKBOOK");
        m_context->isBiff8 = version == Biff8;
        uint64_t start = records.position();
        while (records.next() && records.type() != XlsEof) {
            readGlobal(records.type(), records.data(), start);
            start = records.position();
        }
    }

    void readGlobal(uint16_t type, std::string_view data, uint64_t start)
    {
        if (type == XlsFilePass)
            throw RefusedFile(Refusal::Encrypted, "MESS_TAB_PASSWORD");
        if (type == XlsSst)
            m_context->strings->setPosition(start);
        else if (type == XlsCodePage && data.size() >= 2)
            m_context->codePage = codePageName(u16(data.data()));
        else if (type == XlsDateMode && data.size() >= 2)
            m_context->datesFrom1904 = u16(data.data()) == 1;
        else if (type == XlsXf && data.size() >= 4)
            m_styleFormats.push_back(u16(data.data() + 2));
        else if (type == XlsFormat && data.size() > 3)
            m_formats[u16(data.data())] =
                isDateFormat(xlsText(data.substr(2), *m_context, !m_context->isBiff8));
        else if (type == XlsBoundSheet && data.size() > 7)
            m_sheets.push_back({u32(data.data()), xlsText(data.substr(6), *m_context, true),
                                data[5] == Worksheet, (data[4] & 3) != 0});
    }

    std::shared_ptr<const InputFile> m_file;
    std::vector<Extent> m_stream;
    std::shared_ptr<XlsContext> m_context;
    std::vector<SheetEntry> m_sheets;
    std::map<int, bool> m_formats; ///< the workbook's number formats: whether they are for dates
    std::vector<int> m_styleFormats;
    std::size_t m_next = 0;
};

std::vector<Extent> workbookStream(const std::shared_ptr<const InputFile> &file)
{
    const CompoundFile compound(file);
    if (compound.contains("EncryptedPackage"))
        throw RefusedFile(Refusal::Encrypted, "MESS_TAB_PASSWORD");
    for (const char *name : {"Workbook", "Book", "WORKBOOK", "BOOK"}) {
        if (compound.contains(name))
            return compound.extents(name);
    }
    throw RefusedFile(Refusal::NotSupportedFormat, "MESS_TAB_OFFICE_DOCUMENT");
}

} // namespace

std::unique_ptr<Workbook> openXls(std::shared_ptr<const InputFile> file, bool compound)
{
    std::vector<Extent> stream =
        compound ? workbookStream(file) : std::vector<Extent>{{0, file->size()}};
    return std::make_unique<XlsWorkbook>(std::move(file), std::move(stream));
}

} // namespace vlt::driver
