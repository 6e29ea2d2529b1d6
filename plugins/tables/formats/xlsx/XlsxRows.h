#pragma once

#include "plugins/tables/cells/RowReader.h"
#include "plugins/tables/formats/xlsx/SharedStrings.h"
#include "plugins/tables/formats/xml/XmlRowFramer.h"

namespace vlt::driver {

/// The data of an XLSX workbook that its cells refer to.
struct XlsxContext
{
    std::shared_ptr<SharedStrings> strings;
    std::vector<bool> dateStyles; ///< whether a cell style is a date format
    bool datesFrom1904 = false;
};

/// A c element of a sheet, without its shared text.
struct XlsxRawCell
{
    int column = 0;
    char type = 'n'; ///< n number, s shared string, t formula text, i inline string, b boolean, e
                     ///< error, d date
    int style = 0;
    std::string_view value; ///< text of the element v, or markup of the element is
};

/// Reads the next c element with a value in [at, end) and moves `at` behind it; false if there is
/// none.
///
/// @param column  column of the previous cell, -1 for the first one: a cell without a reference has
///                the next column
bool nextXlsxCell(const char *&at, const char *end, int column, XlsxRawCell &cell);

/// Rows of a sheet part.
class XlsxRows : public RowReader
{
public:
    XlsxRows(std::unique_ptr<ByteSource> sheet, std::shared_ptr<const XlsxContext> context);

    bool advance() override { return m_framer.advance(); }
    int64_t rowNumber() const override { return m_framer.rowNumber(); }
    bool isHidden() const override { return m_framer.isHidden(); }
    bool hasContent(int lastColumn) override;
    uint64_t fingerprint() override;
    void cells(Row &row) override;
    std::size_t size() const override { return m_framer.inside().size(); }
    void leaveOutTexts(const std::vector<char> *columns) override { m_leftOut = columns; }

    /// Appends the numbers of the shared strings that this row uses.
    void collectSharedStrings(std::vector<uint64_t> &numbers) const;

private:
    bool convert(const XlsxRawCell &raw, Cell &cell, Row &row) const;

    XmlRowFramer m_framer;
    std::shared_ptr<const XlsxContext> m_context;
    const std::vector<char> *m_leftOut = nullptr;

    bool leavesOut(std::size_t column) const
    {
        return m_leftOut && column < m_leftOut->size() && (*m_leftOut)[column];
    }
};

} // namespace vlt::driver
