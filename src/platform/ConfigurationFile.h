#pragma once

#include "platform/Result.h"

#include <QString>

namespace vlt::platform {

/// Reads a whole file of the installation.
///
/// @par Errors   MESS_MISSING_CONF_FILE with the path.
Result<QString> readConfigurationFile(const QString &path);

} // namespace vlt::platform
