#pragma once

#include "plugins/tables/cells/RowReader.h"
#include "plugins/tables/formats/xls/XlsContext.h"

#include <memory>
#include <unordered_set>

namespace vlt::driver {

/// Rows of one worksheet stream. The cells are expected row by row, as all writers order them.
class XlsRows : public RowReader
{
public:
    XlsRows(std::unique_ptr<ByteSource> sheet, std::shared_ptr<const XlsContext> context);

    bool advance() override;
    int64_t rowNumber() const override { return m_rowNumber; }
    bool isHidden() const override { return m_hidden.contains(m_rowNumber - 1); }
    bool hasContent(int lastColumn) override;
    uint64_t fingerprint() override;
    void cells(Row &row) override;
    std::size_t size() const override { return m_cells.size(); }
    void leaveOutTexts(const std::vector<char> *columns) override { m_leftOut = columns; }

private:
    struct RawCell
    {
        uint16_t column;
        uint16_t style;
        enum class Kind : uint8_t { Number, SharedText, OwnText, Boolean, Error } kind;
        uint32_t index; ///< number of the shared or own text; or the boolean or error code
        double number;
    };

    bool readRecord();
    void readRow(std::string_view data);
    void readMulRk(std::string_view data);
    void readFormula(std::string_view data);
    void readBoolErr(std::string_view data);
    void add(std::string_view data, RawCell::Kind kind, double number, uint32_t index);
    void addText(std::string_view data, std::string text);
    std::vector<RawCell> &cellsOf(int row);

    XlsRecords m_records;
    std::shared_ptr<const XlsContext> m_context;
    const std::vector<char> *m_leftOut = nullptr;

    bool leavesOut(std::size_t column) const
    {
        return m_leftOut && column < m_leftOut->size() && (*m_leftOut)[column];
    }
    int m_row = -1; ///< of the cells in m_cells, from 0
    int64_t m_rowNumber = 0;
    std::vector<RawCell> m_cells;
    std::vector<std::string> m_texts; ///< own texts of this row
    int m_nextRow = -1;               ///< row of the cells in m_nextCells
    std::vector<RawCell> m_nextCells; ///< first cells of the next row, which end this one
    std::vector<std::string> m_nextTexts;
    bool m_ended = false;
    std::unordered_set<int64_t> m_hidden; ///< rows, from 0; at most 65536
};

} // namespace vlt::driver
