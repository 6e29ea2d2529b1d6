#pragma once

#include "platform/AtomicFile.h"

namespace vlt::platform {

/// Writes the text of a layer in UTF-8. Afterwards the file is the old one or the complete new one.
///
/// @par Errors  cannotCreateLayer() with the system's reason.
Result<Done> writeLayerFile(const QString &path, const QString &text, Access access);

/// The error MESS_CANT_CREATE_LAYER for a file of a layer.
///
/// @param reason  the system's message
Error cannotCreateLayer(const QString &path, const QString &reason);

} // namespace vlt::platform
