#pragma once

#include "plugins/tables/ogr/TableFile.h"

#include <string>

namespace vlt::driver {

/// The first rows of a table as they stand in the file, and what is needed to understand them, as
/// a JSON object for programs that show a table: see contract/TableMetadata.h. Texts are cut, and
/// rows at the end are left out if there are many columns. Throws RefusedFile.
std::string tableExcerpt(const TableFile &file);

} // namespace vlt::driver
