#pragma once

#include "platform/Result.h"

#include <QStringList>

namespace vlt::platform {

/// Whether a file to be written is one of the files that are read, even under another name. Empty
/// names are ignored.
bool isOneOf(const QString &output, const QStringList &inputs);

/// The error for such a file.
Error outputIsInput(const QString &output);

} // namespace vlt::platform
