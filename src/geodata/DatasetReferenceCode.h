#pragma once

#include "platform/Result.h"

namespace vlt::geodata {

/// The EPSG code of the coordinate system that a raster or vector file declares, as text ("2154"):
/// that of the raster, or of the first layer of the vector file. Local files only.
///
/// @par Errors   MESS_ERR_NO_SRS_DSR for a raster without such a system; MESS_ERR_NO_SRS_DSV for a
///               vector file without one, and for a file that is neither raster nor vector.
Result<QString> datasetReferenceCode(const QString &path);

} // namespace vlt::geodata
