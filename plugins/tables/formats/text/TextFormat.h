#pragma once

#include "plugins/tables/bytes/InputFile.h"

#include <cstdint>
#include <memory>
#include <string>

namespace vlt::driver {

/// Size in bytes of the start of a file from which its format is found.
constexpr std::size_t TextSampleSize = std::size_t{64} << 10;

/// The format of a text table.
struct TextFormat
{
    std::string encoding;  ///< name for iconv; UTF-8 also for plain ASCII
    bool isStated = false; ///< by a byte order mark, a pattern of zeros or the user
    char delimiter = ',';
    uint64_t start = 0;         ///< offset of the first row in bytes, after a byte order mark
    int64_t firstRow = 1;       ///< number of the first row; 2 after a line "sep=;"
    std::size_t fieldCount = 0; ///< most frequent number of fields in a row; 0 if unknown

    bool isUtf8() const { return encoding == "UTF-8"; }
};

/// What the caller states about the file; empty members are found automatically.
struct TextHints
{
    std::string encoding;
    char delimiter = 0;
};

/// Finds encoding and delimiter from the start of a file. The delimiter is the one that cuts the
/// largest number of lines into the same number of fields, so that commas in addresses or decimal
/// numbers are not mistaken for it. Throws RefusedFile (NotATable, OneColumn, NotSupportedFormat).
TextFormat findTextFormat(const std::shared_ptr<const InputFile> &file, const TextHints &hints);

} // namespace vlt::driver
