#pragma once

#include "SiteRows.h"

#include <memory>
#include <string>

namespace vlt::benchmarks {

/// Writes a table row by row in the form that common spreadsheet programs write.
class TableWriter
{
public:
    virtual ~TableWriter() = default;
    virtual void addRow(const Row &row) = 0;
    virtual void finish() = 0;
};

/// A writer for "csv" (commas, UTF-8, CRLF), "xlsx" (shared strings, references on rows and cells)
/// or "xml" (SpreadsheetML 2003).
/// @param rowCount   number of rows, including the header
/// @return           null for any other format
/// @par Errors       Writers throw std::runtime_error when the file cannot be written.
std::unique_ptr<TableWriter> makeTableWriter(const std::string &format, const std::string &path,
                                             std::int64_t rowCount);

} // namespace vlt::benchmarks
