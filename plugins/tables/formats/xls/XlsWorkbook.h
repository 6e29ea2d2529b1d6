#pragma once

#include "plugins/tables/bytes/InputFile.h"
#include "plugins/tables/cells/RowReader.h"

namespace vlt::driver {

/// Opens a BIFF8 or BIFF5 workbook, which is either in a compound file or the whole file. Throws
/// RefusedFile.
std::unique_ptr<Workbook> openXls(std::shared_ptr<const InputFile> file, bool compound);

} // namespace vlt::driver
