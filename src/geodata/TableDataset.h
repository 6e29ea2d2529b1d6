#pragma once

#include "geodata/ErrorCollector.h"
#include "platform/Result.h"

#include <gdal_priv.h>
#include <ogrsf_frmts.h>

namespace vlt::geodata {

/// Opens a table connection ("site:..." or "link:...") for reading. Other names are refused before
/// any driver gets them, so that no text from a user's file reaches a driver that would open a
/// network connection.
///
/// @param options  open options, such as "OVERVIEW=YES", with a null pointer at the end
/// @par Errors     the driver's reason, without the path, as detail.
Result<GDALDatasetUniquePtr> openTable(const QString &connection, const ErrorCollector &errors,
                                       const char *const *options = nullptr);

} // namespace vlt::geodata
