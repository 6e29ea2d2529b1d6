#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace vlt::driver {

/// A reason why a row cannot be read in full.
struct RowProblem
{
    int64_t row = 0;     ///< number in the file; 0 for the whole table
    std::string column;  ///< name of the field; empty for the whole row
    bool isError = true; ///< a position is missing; otherwise only a value is lost
    std::string text;    ///< English, from contract/TableTexts.h
};

/// A value as quoted in the text of a problem; a long one is cut.
std::string quotation(std::string_view value);

} // namespace vlt::driver
