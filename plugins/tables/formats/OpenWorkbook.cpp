#include "plugins/tables/formats/OpenWorkbook.h"

#include "plugins/tables/bytes/CompoundFile.h"
#include "plugins/tables/bytes/Refusal.h"
#include "plugins/tables/formats/text/TextWorkbook.h"
#include "plugins/tables/formats/xls/XlsWorkbook.h"
#include "plugins/tables/formats/xlsx/XlsxWorkbook.h"
#include "plugins/tables/formats/xml/SpreadsheetMlWorkbook.h"

namespace vlt::driver {

namespace {

constexpr std::size_t HeadSize = 512;

/// Whether a text starts with "<", apart from byte order marks, white space and the zero bytes of
/// wide encodings.
bool startsWithTag(const std::string &head)
{
    for (const char c : head) {
        if (static_cast<unsigned char>(c) < 0x80 && c != '\0' && c != ' ' && c != '\t' &&
            c != '\r' && c != '\n')
            return c == '<';
    }
    return false;
}

} // namespace

std::unique_ptr<Workbook> openWorkbook(std::shared_ptr<const InputFile> file,
                                       const std::string &name, const TextHints &hints)
{
    const std::string head = file->head(HeadSize);
    if (head.empty())
        throw RefusedFile(Refusal::Empty, "MESS_TAB_EMPTY_FILE");
    if (head.starts_with("PK\x03\x04"))
        return openXlsx(std::move(file));
    if (head.starts_with(CompoundFile::Signature))
        return openXls(std::move(file), true);
    if (head.size() > 4 && head[0] == '\x09' &&
        (head[1] == '\x08' || head[1] == '\x04' || head[1] == '\x02' || head[1] == '\0') &&
        head[3] == '\0')
        return openXls(std::move(file), false);
    if (startsWithTag(head))
        return openSpreadsheetMl(file);
    if (head.starts_with("%PDF-"))
        throw RefusedFile(Refusal::NotSupportedFormat, "MESS_TAB_PDF");
    return openText(std::move(file), name, hints);
}

} // namespace vlt::driver
