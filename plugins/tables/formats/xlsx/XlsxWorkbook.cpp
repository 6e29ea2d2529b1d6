#include "plugins/tables/formats/xlsx/XlsxWorkbook.h"

#include "plugins/tables/bytes/RecodeSource.h"
#include "plugins/tables/bytes/Refusal.h"
#include "plugins/tables/bytes/ZipArchive.h"
#include "plugins/tables/cells/OfficeDates.h"
#include "plugins/tables/formats/xlsx/XlsxRows.h"

#include <algorithm>
#include <charconv>
#include <map>

namespace vlt::driver {

namespace {

/// Maximum size in bytes of the small parts: workbook, relations, styles.
constexpr std::size_t MaxPartSize = std::size_t{64} << 20;
constexpr uint64_t FewStrings = 4096; ///< a sheet that uses fewer keeps only these

/// A reference from one part of a package to another.
struct Relation
{
    std::string type; ///< last part of the type's URL
    std::string target;
};

std::string directoryOf(const std::string &part)
{
    const std::size_t slash = part.rfind('/');
    return slash == std::string::npos ? std::string() : part.substr(0, slash + 1);
}

/// Part name of a relation's target, relative to `part`, with "." and ".." resolved.
std::string resolved(const std::string &part, const std::string &target)
{
    const std::string whole =
        target.starts_with('/') ? target.substr(1) : directoryOf(part) + target;
    std::vector<std::string> steps;
    for (std::size_t at = 0; at <= whole.size();) {
        const std::size_t slash = std::min(whole.find('/', at), whole.size());
        const std::string step = whole.substr(at, slash - at);
        if (step == ".." && !steps.empty())
            steps.pop_back();
        else if (!step.empty() && step != "." && step != "..")
            steps.push_back(step);
        at = slash + 1;
    }
    std::string name;
    for (const std::string &step : steps)
        name += (name.empty() ? "" : "/") + step;
    return name;
}

std::map<std::string, Relation> readRelations(const ZipArchive &archive, const std::string &part)
{
    std::map<std::string, Relation> relations;
    const std::string directory = directoryOf(part);
    const std::string name = directory + "_rels/" + part.substr(directory.size()) + ".rels";
    if (!archive.contains(name))
        return relations;
    const std::string text = archive.readAll(name, MaxPartSize);
    XmlCursor cursor(text);
    XmlTag tag;
    while (cursor.next(tag)) {
        const auto id = tag.opens("Relationship") ? attribute(tag.attributes, "Id") : std::nullopt;
        const auto type = attribute(tag.attributes, "Type");
        const auto target = attribute(tag.attributes, "Target");
        if (id && type && target)
            relations[std::string(*id)] = {std::string(type->substr(type->rfind('/') + 1)),
                                           resolved(part, decodeXml(*target))};
    }
    return relations;
}

int number(std::optional<std::string_view> text)
{
    int value = 0;
    if (text)
        std::from_chars(text->data(), text->data() + text->size(), value);
    return value;
}

/// Whether each cell style is a date format.
std::vector<bool> readDateStyles(const std::string &text)
{
    std::map<int, bool> ownFormats;
    std::vector<bool> styles;
    XmlCursor cursor(text);
    XmlTag tag;
    bool inCellFormats = false;
    while (cursor.next(tag)) {
        if (tag.opens("numFmt")) {
            const auto code = attribute(tag.attributes, "formatCode");
            ownFormats[number(attribute(tag.attributes, "numFmtId"))] =
                code && isDateFormat(decodeXml(*code));
        } else if (tag.name == "cellXfs")
            inCellFormats = tag.kind == XmlTag::Kind::Open;
        else if (inCellFormats && tag.opens("xf")) {
            const int id = number(attribute(tag.attributes, "numFmtId"));
            const auto own = ownFormats.find(id);
            styles.push_back(own != ownFormats.end() ? own->second : isDateFormatId(id));
        }
    }
    return styles;
}

class XlsxSheet : public Sheet
{
public:
    XlsxSheet(std::shared_ptr<const ZipArchive> archive, std::string part, std::string name,
              bool hidden, std::shared_ptr<const XlsxContext> context)
        : m_archive(std::move(archive))
        , m_part(std::move(part))
        , m_name(std::move(name))
        , m_hidden(hidden)
        , m_context(std::move(context))
    {}

    const std::string &name() const override { return m_name; }
    bool hidden() const override { return m_hidden; }
    std::unique_ptr<RowReader> rows() const override
    {
        return std::make_unique<XlsxRows>(openPart(), m_context);
    }

    /// A small sheet may use only few texts of a very long list; only these are then kept.
    void prepareStrings(uint64_t rowCount) const override
    {
        if (rowCount > FewStrings)
            return;
        std::vector<uint64_t> numbers;
        XlsxRows rows(openPart(), m_context);
        while (rows.advance())
            rows.collectSharedStrings(numbers);
        std::sort(numbers.begin(), numbers.end());
        numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
        if (!numbers.empty())
            m_context->strings->keepOnly(std::move(numbers));
    }

private:
    /// The part in UTF-8; the standard also allows UTF-16.
    std::unique_ptr<ByteSource> openPart() const
    {
        char mark[2] = {};
        const std::size_t got = m_archive->open(m_part)->read(mark, sizeof mark);
        std::size_t markSize = 0;
        const std::string encoding = encodingOfMark(std::string(mark, got), markSize);
        std::unique_ptr<ByteSource> part = m_archive->open(m_part);
        if (!encoding.starts_with("UTF-16"))
            return part;
        return std::make_unique<RecodeSource>(std::move(part), encoding);
    }

    std::shared_ptr<const ZipArchive> m_archive;
    std::string m_part;
    std::string m_name;
    bool m_hidden;
    std::shared_ptr<const XlsxContext> m_context;
};

class XlsxWorkbook : public Workbook
{
public:
    explicit XlsxWorkbook(std::shared_ptr<const InputFile> file)
        : m_archive(std::make_shared<ZipArchive>(std::move(file)))
    {
        const std::string main = mainPart();
        const std::map<std::string, Relation> relations = readRelations(*m_archive, main);
        auto context = std::make_shared<XlsxContext>();
        std::string strings;
        for (const auto &[id, relation] : relations) {
            if (relation.type == "sharedStrings")
                strings = relation.target;
            else if (relation.type == "styles" && m_archive->contains(relation.target))
                context->dateStyles =
                    readDateStyles(m_archive->readAll(relation.target, MaxPartSize));
        }
        if (!strings.empty() && !m_archive->contains(strings))
            strings.clear();
        context->strings = std::make_shared<SharedStrings>(m_archive, strings);
        readSheets(m_archive->readAll(main, MaxPartSize), relations, context);
    }

    std::shared_ptr<Sheet> nextSheet() override
    {
        return m_next < m_sheets.size() ? m_sheets[m_next++] : nullptr;
    }

private:
    std::string mainPart() const
    {
        for (const auto &[id, relation] : readRelations(*m_archive, "")) {
            if (relation.type == "officeDocument") {
                if (!relation.target.ends_with(".xml")) // .xlsb has binary parts
                    throw RefusedFile(Refusal::NotSupportedFormat, "MESS_TAB_XLSB");
                if (relation.target.starts_with("word/") || relation.target.starts_with("ppt/"))
                    break;
                return relation.target;
            }
        }
        if (m_archive->contains("xl/workbook.xml"))
            return "xl/workbook.xml";
        if (m_archive->contains("mimetype") && m_archive->contains("content.xml"))
            throw RefusedFile(Refusal::NotSupportedFormat, "MESS_TAB_OPEN_DOCUMENT");
        throw RefusedFile(Refusal::NotSupportedFormat, "MESS_TAB_ARCHIVE");
    }

    void readSheets(const std::string &workbook, const std::map<std::string, Relation> &relations,
                    const std::shared_ptr<XlsxContext> &context)
    {
        XmlCursor cursor(workbook);
        XmlTag tag;
        while (cursor.next(tag)) {
            if (tag.opens("workbookPr")) {
                const auto from1904 = attribute(tag.attributes, "date1904");
                context->datesFrom1904 = from1904 && (*from1904 == "1" || *from1904 == "true");
            }
            const auto id = tag.opens("sheet") ? attribute(tag.attributes, "id") : std::nullopt;
            const auto relation = id ? relations.find(std::string(*id)) : relations.end();
            if (relation == relations.end() || relation->second.type != "worksheet")
                continue;
            const auto name = attribute(tag.attributes, "name");
            const auto state = attribute(tag.attributes, "state");
            m_sheets.push_back(std::make_shared<XlsxSheet>(m_archive, relation->second.target,
                                                           name ? decodeXml(*name) : std::string(),
                                                           state && *state != "visible", context));
        }
    }

    std::shared_ptr<const ZipArchive> m_archive;
    std::vector<std::shared_ptr<Sheet>> m_sheets;
    std::size_t m_next = 0;
};

} // namespace

std::unique_ptr<Workbook> openXlsx(std::shared_ptr<const InputFile> file)
{
    return std::make_unique<XlsxWorkbook>(std::move(file));
}

} // namespace vlt::driver
