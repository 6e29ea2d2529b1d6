#pragma once

#include "plugins/tables/cells/RowReader.h"
#include "plugins/tables/formats/xml/XmlRowFramer.h"

#include <functional>

namespace vlt::driver {

/// Rows of one worksheet of a SpreadsheetML 2003 file.
class SpreadsheetMlRows : public RowReader
{
public:
    /// @param insideTable   the stream starts at a row; otherwise before the Table of the worksheet
    /// @param firstRow      number of that row
    /// @param streamOffset  position of the start of the stream, see Sheet::rowsFrom()
    /// @param atEnd         gets the position behind the Table when all its rows were read
    SpreadsheetMlRows(std::unique_ptr<ByteSource> stream, bool insideTable, int64_t firstRow,
                      uint64_t streamOffset, std::function<void(uint64_t)> atEnd);

    bool advance() override;
    int64_t rowNumber() const override { return m_framer.rowNumber(); }
    bool isHidden() const override { return m_framer.isHidden(); }
    bool hasContent(int lastColumn) override;
    uint64_t fingerprint() override;
    void cells(Row &row) override;
    std::size_t size() const override { return m_framer.inside().size(); }
    uint64_t position() const override { return m_framer.position(); }

private:
    XmlRowFramer m_framer;
    std::function<void(uint64_t)> m_atEnd;
};

} // namespace vlt::driver
