#pragma once

#include "Measurement.h"

#include <string>

namespace vlt::benchmarks {

enum class ExpatTask {
    Rows,        ///< count Row elements, nothing else
    RowsAndTexts ///< also take the characters of every Data element
};

/// One pass of a plain expat parser over a SpreadsheetML file: a lower bound for the time of
/// readers that use expat. Counts all Row elements, including the header. With RowsAndTexts, the
/// number of fields is the number of Data elements in the widest row, and the checksum the sum of
/// their bytes.
/// @par Errors   std::runtime_error when the file cannot be read or is not well-formed.
Measurement expatPass(const std::string &path, ExpatTask task);

} // namespace vlt::benchmarks
