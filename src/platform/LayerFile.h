#pragma once

#include "platform/AtomicFile.h"

namespace vlt::platform {

/// Writes a layer text in UTF-8: afterwards the file is the old one or the whole new one.
///
/// @par Errors  cannotCreateLayer() with the system's reason.
Result<Done> writeLayerFile(const QString &path, const QString &text, Access access);

/// MESS_CANT_CREATE_LAYER for a file of a layer.
///
/// @param reason  the system's
Error cannotCreateLayer(const QString &path, const QString &reason);

} // namespace vlt::platform
