#pragma once

#include "plugins/tables/bytes/InputFile.h"
#include "plugins/tables/cells/StringPool.h"
#include "plugins/tables/formats/xls/XlsRecords.h"

#include <optional>
#include <string>
#include <vector>

namespace vlt::driver {

/// The shared string table of a workbook. It is read only as far as needed.
class XlsStrings
{
public:
    XlsStrings(std::shared_ptr<const InputFile> file, std::vector<Extent> stream)
        : m_file(std::move(file))
        , m_stream(std::move(stream))
    {}

    /// Sets the position of the table's record in the stream.
    void setPosition(uint64_t position) { m_position = position; }

    /// The text with that number, valid as long as this object. Nothing if it does not exist or the
    /// table is damaged before it.
    std::optional<std::string_view> at(uint32_t index);

    /// Whether a text read so far contains a zero byte.
    bool holdZeros() const { return m_holdZeros; }

private:
    bool start();
    bool readString();
    bool bytes(void *to, std::size_t size);
    bool skip(std::size_t size);
    bool readCharacters(std::size_t count, bool wide);

    std::shared_ptr<const InputFile> m_file;
    std::vector<Extent> m_stream;
    uint64_t m_position = 0;
    std::unique_ptr<XlsRecords> m_records;
    std::string_view m_rest; ///< unread part of the current record
    std::string m_text;
    StringPool m_texts;
    bool m_ended = false;
    bool m_holdZeros = false;
};

/// The data of an XLS workbook that its rows refer to.
struct XlsContext
{
    std::shared_ptr<XlsStrings> strings;
    std::vector<bool> dateStyles; ///< whether an XF number is a date format
    bool datesFrom1904 = false;
    bool isBiff8 = true;
    std::string codePage = "CP1252"; ///< encoding of the 8-bit texts before BIFF8
};

/// The part of a stream from `position` to its end.
std::vector<Extent> extentsFrom(const std::vector<Extent> &stream, uint64_t position);

/// The string at the start of `data`, after its length in 16 bits (8 bits with `shortLength`).
/// Empty if it is incomplete.
std::string xlsText(std::string_view data, const XlsContext &context, bool shortLength = false);

/// Appends UTF-16 (wide) or Latin-1 characters to a UTF-8 text. `surrogate` holds the first half of
/// a surrogate pair between two calls.
void appendXlsCharacters(std::string &to, std::string_view bytes, bool wide, uint32_t &surrogate);

} // namespace vlt::driver
