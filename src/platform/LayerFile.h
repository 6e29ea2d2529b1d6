#pragma once

#include "platform/AtomicFile.h"

namespace vlt::platform {

/// Writes a layer text in UTF-8: afterwards the file is the old one or the whole new one.
///
/// @param reason  where not null, takes the system's reason of a failure
/// @par Errors    MESS_CANT_CREATE_LAYER with the path.
Result<Done> writeLayerFile(const QString &path, const QString &text, Access access,
                            QString *reason = nullptr);

} // namespace vlt::platform
