#pragma once

#include "bytes/InputFile.h"
#include "cells/RowReader.h"

namespace vlt::tables {

/// Opens a SpreadsheetML 2003 file in any encoding. Throws RefusedFile, also for XML of another
/// kind.
std::unique_ptr<Workbook> openSpreadsheetMl(const std::shared_ptr<const InputFile> &file);

} // namespace vlt::tables
