#pragma once

#include "plugins/tables/bytes/InputFile.h"

#include <cstdint>
#include <memory>
#include <string>

namespace vlt::driver {

/// Bytes at the start of a file from which its format is guessed.
constexpr std::size_t TextSampleSize = std::size_t{64} << 10;

/// How a text table is written.
struct TextFormat
{
    std::string encoding;  ///< as iconv calls it; UTF-8 for plain ASCII, too
    bool isStated = false; ///< by a byte order mark, a pattern of zeros or the user
    char delimiter = ',';
    uint64_t start = 0;         ///< bytes before the first row: a byte order mark
    int64_t firstRow = 1;       ///< number of the first row: 2 behind a line "sep=;"
    std::size_t fieldCount = 0; ///< of most rows; 0 where it is not known

    bool isUtf8() const { return encoding == "UTF-8"; }
};

/// What the user says about the file; empty members are found out.
struct TextHints
{
    std::string encoding;
    char delimiter = 0;
};

/// Finds encoding and delimiter from the first part of a file. The delimiter is the one that cuts
/// the most lines into the same number of fields, so that commas in addresses or decimals do not
/// mislead it. Throws RefusedFile (NotATable, OneColumn, NotSupportedFormat).
TextFormat findTextFormat(const std::shared_ptr<const InputFile> &file, const TextHints &hints);

} // namespace vlt::driver
