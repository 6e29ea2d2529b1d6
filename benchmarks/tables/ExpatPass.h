#pragma once

#include "Measurement.h"

#include <string>

namespace vlt::benchmarks {

enum class ExpatTask {
    Rows,        ///< count Row elements, nothing else
    RowsAndTexts ///< also take the characters of every Data element
};

/// One pass of a bare expat parser over a SpreadsheetML file: the least a reader that is built on
/// it can take. Counts all Row elements, the header's included. With RowsAndTexts the fields are
/// the Data elements of the widest row and the checksum is the number of their bytes.
/// @par Errors   std::runtime_error when the file cannot be read or is not well-formed.
Measurement expatPass(const std::string &path, ExpatTask task);

} // namespace vlt::benchmarks
