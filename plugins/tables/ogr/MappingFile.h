#pragma once

#include "contract/ColumnMapping.h"

#include <string>

namespace vlt::driver {

/// The mapping of a table, as its file was when the table was opened.
struct MappingFile
{
    std::string path; ///< empty if no mapping is used
    contract::ColumnMapping mapping;
    std::string fault; ///< English, from contract/TableTexts.h: why a file is not used

    bool operator==(const MappingFile &) const = default;
};

/// Reads the mapping of a table of that kind. Without a statement it is the file beside the table;
/// one for tables of the other kind is then left aside.
///
/// @param stated  path, relative to the folder of the table; contract::query::NoMapping; or empty
MappingFile readMappingFile(const std::string &tablePath, contract::TableKind kind,
                            const std::string &stated);

} // namespace vlt::driver
