#pragma once

#include "plugins/tables/bytes/InputFile.h"
#include "plugins/tables/cells/RowReader.h"

namespace vlt::driver {

/// Opens an Office Open XML workbook (ECMA-376, transitional or strict), with or without macros.
/// Throws RefusedFile.
std::unique_ptr<Workbook> openXlsx(std::shared_ptr<const InputFile> file);

} // namespace vlt::driver
