#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace vlt::driver {

/// One thing in a row that keeps it from being read in full.
struct RowProblem
{
    int64_t row = 0;     ///< number in the file; 0 for the table as a whole
    std::string column;  ///< name of the field; empty for the row as a whole
    bool isError = true; ///< something has no position; otherwise only a value is lost
    std::string text;    ///< English, of the table of texts
};

/// A value as a problem quotes it: the start of a long one.
std::string quotation(std::string_view value);

} // namespace vlt::driver
