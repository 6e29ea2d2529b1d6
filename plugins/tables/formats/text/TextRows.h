#pragma once

#include "plugins/tables/bytes/ChunkedInput.h"
#include "plugins/tables/cells/RowReader.h"
#include "plugins/tables/formats/text/TextFormat.h"

namespace vlt::driver {

/// Rows of a delimited text (RFC 4180, read leniently).
///
/// A quotation mark opens a quoted field only at the start of a field, so that marks of inches and
/// seconds of arc are kept. A mark that is never closed is an ordinary character. Lines end in LF,
/// CR LF or CR; blank lines count in the numbers of the rows.
class TextRows : public RowReader
{
public:
    /// @param stream    the rows in UTF-8
    /// @param firstRow  number of the row at the start of the stream
    /// @param position  offset of that row in the file, in bytes
    TextRows(std::unique_ptr<ByteSource> stream, const TextFormat &format, int64_t firstRow,
             uint64_t position);

    bool advance() override;
    int64_t rowNumber() const override { return m_number; }
    bool hasContent(int lastColumn) override;
    uint64_t fingerprint() override;
    void cells(Row &row) override;
    std::size_t size() const override { return static_cast<std::size_t>(m_rowEnd - m_row); }
    uint64_t position() const override
    {
        return m_windowPosition + static_cast<uint64_t>(m_row - m_input.begin());
    }

private:
    bool more();
    bool findRowEnd();
    const char *closingQuote(const char *field);
    std::string_view readable(Row &row) const;

    ChunkedInput m_input;
    char m_delimiter;
    std::string m_encoding;
    std::size_t m_fieldCount;
    uint64_t m_windowPosition;
    int64_t m_number;
    const char *m_row = nullptr;    ///< the current row
    const char *m_rowEnd = nullptr; ///< its line end
    const char *m_next = nullptr;   ///< the row after it
    bool m_atEnd = false;           ///< the window includes the end of the stream
};

} // namespace vlt::driver
