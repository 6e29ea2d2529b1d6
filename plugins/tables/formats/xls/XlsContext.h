#pragma once

#include "plugins/tables/bytes/InputFile.h"
#include "plugins/tables/cells/StringPool.h"
#include "plugins/tables/formats/xls/XlsRecords.h"

#include <optional>
#include <string>
#include <vector>

namespace vlt::driver {

/// The shared string table of a workbook, read as far as it is asked for.
class XlsStrings
{
public:
    XlsStrings(std::shared_ptr<const InputFile> file, std::vector<Extent> stream)
        : m_file(std::move(file))
        , m_stream(std::move(stream))
    {}

    /// Where the table's record starts in the stream.
    void setPosition(uint64_t position) { m_position = position; }

    /// The text with that number; nothing when there is none, or where the table is damaged before
    /// it. Stays valid for the life of this object.
    std::optional<std::string_view> at(uint32_t index);

    /// Whether a text that was read so far holds a zero.
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
    std::string_view m_rest; ///< of the current record
    std::string m_text;
    StringPool m_texts;
    bool m_ended = false;
    bool m_holdZeros = false;
};

/// What the rows of an XLS workbook refer to.
struct XlsContext
{
    std::shared_ptr<XlsStrings> strings;
    std::vector<bool> dateStyles; ///< by XF number
    bool datesFrom1904 = false;
    bool isBiff8 = true;
    std::string codePage = "CP1252"; ///< of 8-bit texts before BIFF8
};

/// The part of a stream that starts at `position`.
std::vector<Extent> extentsFrom(const std::vector<Extent> &stream, uint64_t position);

/// Text of a string with a 16-bit length at `data` (8-bit length with `shortLength`); empty when it
/// is cut.
std::string xlsText(std::string_view data, const XlsContext &context, bool shortLength = false);

/// Appends UTF-16 (wide) or Latin-1 characters to a UTF-8 text. `surrogate` carries the first half
/// of a pair over.
void appendXlsCharacters(std::string &to, std::string_view bytes, bool wide, uint32_t &surrogate);

} // namespace vlt::driver
