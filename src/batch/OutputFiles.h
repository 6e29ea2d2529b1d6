#pragma once

#include "platform/InputFiles.h"

#include <QStringList>

namespace vlt::batch {

/// The same as platform::isOneOf(); the standard output is no file.
bool isOneOf(const QString &output, const QStringList &inputs);

/// Whether the output is "-", the program's own standard output.
bool isStandardOutput(const QString &output);

using platform::outputIsInput;

} // namespace vlt::batch
