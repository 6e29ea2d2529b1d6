#pragma once

#include "platform/Result.h"

#include <QStringList>

namespace vlt::batch {

/// Whether a file that is to be written is one of those that are read; two names of one file are
/// seen to be one, empty names are none.
bool isOneOf(const QString &output, const QStringList &inputs);

/// Whether the output is "-", the program's own standard output.
bool isStandardOutput(const QString &output);

/// What is told of such a file.
Error outputIsInput(const QString &output);

} // namespace vlt::batch
