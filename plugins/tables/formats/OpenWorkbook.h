#pragma once

#include "plugins/tables/bytes/InputFile.h"
#include "plugins/tables/cells/RowReader.h"
#include "plugins/tables/formats/text/TextFormat.h"

namespace vlt::driver {

/// Opens a file of tables. Its content decides the format, not its suffix. `name` becomes the name
/// of the only sheet of a text. Throws RefusedFile.
std::unique_ptr<Workbook> openWorkbook(std::shared_ptr<const InputFile> file,
                                       const std::string &name, const TextHints &hints);

} // namespace vlt::driver
