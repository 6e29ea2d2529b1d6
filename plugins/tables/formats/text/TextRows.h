#pragma once

#include "plugins/tables/bytes/ChunkedInput.h"
#include "plugins/tables/cells/RowReader.h"
#include "plugins/tables/formats/text/TextFormat.h"

namespace vlt::driver {

/// Rows of a delimited text (RFC 4180, read leniently).
///
/// A quotation mark opens a quoted field only at the start of a field, so that inches and seconds
/// of arc stand as they are. One that is never closed is an ordinary character. Lines end in LF, CR
/// LF or CR; blank lines count as rows in the numbering.
class TextRows : public RowReader
{
public:
    /// The stream, which is recoded to UTF-8 already, starts at a row, which is number `firstRow`,
    /// `position` bytes into the file.
    TextRows(std::unique_ptr<ByteSource> stream, const TextFormat &format, int64_t firstRow,
             uint64_t position);

    bool advance() override;
    int64_t rowNumber() const override { return m_number; }
    bool hasContent(int lastColumn) override;
    uint64_t fingerprint() override;
    void cells(Row &row) override;
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
    bool m_atEnd = false;           ///< the window reaches to the end of the stream
};

} // namespace vlt::driver
