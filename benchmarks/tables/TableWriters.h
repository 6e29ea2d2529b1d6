#pragma once

#include "SiteRows.h"

#include <memory>
#include <string>
#include <vector>

namespace vlt::benchmarks {

/// A sheet of a file.
struct Sheet
{
    std::string name;
    std::size_t columnCount = 0;
    std::int64_t rowCount = 0; ///< including the header
};

/// Writes tables row by row in the form that common spreadsheet programs write.
class TableWriter
{
public:
    virtual ~TableWriter() = default;
    /// Starts the first sheet, then the next one.
    virtual void beginSheet() {}
    virtual void addRow(const Row &row) = 0;
    virtual void finish() = 0;
};

/// A writer for "csv" (commas, UTF-8, CRLF), "xlsx" (shared strings, references on rows and cells)
/// or "xml" (SpreadsheetML 2003).
/// @param sheets   at least one; only a workbook ("xlsx") holds more
/// @return         null for any other format, and for too many sheets
/// @par Errors     Writers throw std::runtime_error when the file cannot be written.
std::unique_ptr<TableWriter> makeTableWriter(const std::string &format, const std::string &path,
                                             const std::vector<Sheet> &sheets);

} // namespace vlt::benchmarks
