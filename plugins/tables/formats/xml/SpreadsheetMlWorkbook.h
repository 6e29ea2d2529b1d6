#pragma once

#include "plugins/tables/bytes/InputFile.h"
#include "plugins/tables/cells/RowReader.h"

namespace vlt::driver {

/// Opens a SpreadsheetML 2003 file in any encoding. Throws RefusedFile, also for any other XML.
std::unique_ptr<Workbook> openSpreadsheetMl(const std::shared_ptr<const InputFile> &file);

} // namespace vlt::driver
