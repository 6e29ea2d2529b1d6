#pragma once

#include "platform/Result.h"

#include <QStringList>

namespace vlt::batch {

/// Whether a file to be written is one of the files that are read, even under another name. Empty
/// names are ignored.
bool isOneOf(const QString &output, const QStringList &inputs);

/// Whether the output is "-", the program's own standard output.
bool isStandardOutput(const QString &output);

/// The error for such a file.
Error outputIsInput(const QString &output);

} // namespace vlt::batch
