#pragma once

#include "plugins/tables/bytes/InputFile.h"
#include "plugins/tables/cells/RowReader.h"
#include "plugins/tables/formats/text/TextFormat.h"

namespace vlt::driver {

/// Opens a delimited text as a workbook with one sheet, whose name is `name`. Throws RefusedFile.
std::unique_ptr<Workbook> openText(std::shared_ptr<const InputFile> file, const std::string &name,
                                   const TextHints &hints);

} // namespace vlt::driver
